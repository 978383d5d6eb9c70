#include "frame/documentSwitch.h"

#include "browser/webBrowser.h"
#include "common/document.h"
#include "common/mainWindow.h"
#include "forms/form.h"
#include "forms/mdiForm.h"
#include "widgets/controlName.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QShortcut>

namespace
{
constexpr int MostNumbered = 9;

/// A caption as an entry of a menu, with its number as the accelerator where that has one digit.
QString entryText(const QString &caption, int number)
{
    const QString plain = QString(caption).replace(u'&', QStringLiteral("&&"));
    return number > MostNumbered ? plain : QStringLiteral("&%1 %2").arg(number).arg(plain);
}
} // namespace

DocumentSwitch::DocumentSwitch(QWidget &window, QMenu &menu, MainWindow &mainWindow)
    : QObject(&window), m_menu(menu), m_mainWindow(mainWindow), m_choices(new QActionGroup(this))
{
    addKeys(window, {QStringLiteral("Ctrl+Tab"), QStringLiteral("Ctrl+F6")}, 1);
    addKeys(window, {QStringLiteral("Ctrl+Shift+Tab"), QStringLiteral("Ctrl+Shift+F6")}, -1);
    connect(&menu, &QMenu::aboutToShow, this, &DocumentSwitch::list);
}

// The area of documents would answer these keys, too, with a frame around the window that they lead to; shortcuts come
// before it.
void DocumentSwitch::addKeys(QWidget &window, const QStringList &keys, int by)
{
    for (const QString &key : keys) {
        auto *shortcut = new QShortcut(QKeySequence(key), &window);
        connect(shortcut, &QShortcut::activated, this, [this, by] { step(by); });
    }
}

void DocumentSwitch::step(int by)
{
    const QList<Document *> open = m_mainWindow.openDocuments();
    const qsizetype active = open.indexOf(m_mainWindow.activeDocument());
    if (m_mainWindow.Enabled() && active >= 0 && open.size() > 1)
        show(*open[(active + by + open.size()) % open.size()]);
}

/// The keyboard goes to the source, or stays in the preview where the user has moved it into that one.
void DocumentSwitch::show(Document &document)
{
    auto *form = dynamic_cast<MdiForm *>(&document);
    auto *preview = form->window()->findChild<WebBrowser *>();
    // Asked first, as the window moves the keyboard through its parts while it comes up.
    const bool held = preview && preview->isFocusHeld();
    form->bringToFront();
    if (held && preview->isVisible())
        preview->setFocus(Qt::ShortcutFocusReason);
    else
        document.txtEdit().SetFocus();
}

void DocumentSwitch::list()
{
    qDeleteAll(m_entries);
    m_entries.clear();
    const QList<Document *> open = m_mainWindow.openDocuments();
    if (open.isEmpty())
        return;
    m_entries.append(m_menu.addSeparator());
    for (int number = 1; number <= open.size(); ++number) {
        Document *document = open[number - 1];
        QAction *entry = m_menu.addAction(entryText(document->documentCaption(), number));
        entry->setObjectName(controlName(QStringLiteral("mnuWindowDocument"), number));
        entry->setActionGroup(m_choices);
        entry->setCheckable(true);
        entry->setChecked(document == m_mainWindow.activeDocument());
        connect(entry, &QAction::triggered, this, [this, document] {
            if (m_mainWindow.Enabled() && m_mainWindow.openDocuments().contains(document))
                show(*document);
        });
        m_entries.append(entry);
    }
}
