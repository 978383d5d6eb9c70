#include "frame/documentMarks.h"

#include "common/document.h"
#include "common/habits.h"
#include "common/mainWindow.h"
#include "forms/form.h"
#include "widgets/programIcon.h"
#include "widgets/tabStrip.h"

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QPainter>

namespace
{
constexpr QSize IconSize(16, 16);
constexpr qreal DotSize = 7;

/// A title with the place for the desktop's mark of unsaved text; two such places in a row stand for the text itself.
QString titleOf(const QString &caption, const Habits &habits)
{
    const QString place = QStringLiteral("[*]");
    const QString home = habits.HabitDesktop ? QDir::homePath() + u'/' : QString();
    const bool shortens = habits.HabitDesktop && caption.startsWith(home);
    const QString shown = shortens ? QStringLiteral("~/") + caption.mid(home.size()) : caption;
    return QString(shown).replace(place, place + place) + place;
}
} // namespace

DocumentMarks::DocumentMarks(QWidget &window, TabStrip &tabs, MainWindow &mainWindow, const Habits &habits)
    : QObject(&window), m_window(window), m_tabs(tabs), m_mainWindow(mainWindow), m_habits(habits)
{
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &DocumentMarks::update);
}

void DocumentMarks::update()
{
    drawIcons();
    const QList<Document *> open = m_mainWindow.openDocuments();
    for (const Document *document : open) {
        const QIcon &icon = document->boolDirty ? m_dotted : m_plain;
        const std::optional<int> tab = m_tabs.find(document->DocKeyDescription);
        if (tab && m_tabs.tabIcon(*tab).cacheKey() != icon.cacheKey())
            m_tabs.setTabIcon(*tab, icon);
        QWidget *window = dynamic_cast<const Form *>(document)->window();
        if (!window)
            continue;
        if (const QString title = titleOf(document->documentCaption(), m_habits); window->windowTitle() != title)
            window->setWindowTitle(title);
        // Set again, it would tell the desktop anew, whose answer wakes the program, which comes to rest, and so on.
        if (window->isWindowModified() != document->boolDirty)
            window->setWindowModified(document->boolDirty);
    }
}

/// Draws the icons for the theme at hand.
void DocumentMarks::drawIcons()
{
    const QPalette palette = m_window.palette();
    if (m_palette == palette.cacheKey())
        return;
    m_palette = palette.cacheKey();
    m_plain = programIcon(QStringLiteral("file-code"));
    QPixmap picture = m_plain.pixmap(IconSize, m_window.devicePixelRatioF());
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette.window(), 1.5));
    painter.setBrush(palette.highlight());
    painter.drawEllipse(QRectF(IconSize.width() - DotSize - 0.5, IconSize.height() - DotSize - 0.5, DotSize, DotSize));
    painter.end();
    m_dotted = picture;
}
