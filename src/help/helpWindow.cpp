#include "help/helpWindow.h"

#include "help/helpBrowser.h"
#include "help/helpFindBar.h"
#include "help/helpHitList.h"
#include "help/helpTopics.h"
#include "services/launcher.h"
#include "widgets/programIcon.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

namespace
{
constexpr QSize wantedSize(980, 680);
constexpr int navigatorWidth = 280;
constexpr int searchWidth = 260;

/// The size at first, on a screen of that size.
QSize firstSize(const QScreen *screen)
{
    return screen ? wantedSize.boundedTo(screen->availableSize() * 9 / 10) : wantedSize;
}

QWidget *spacer()
{
    auto *space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    return space;
}
} // namespace

HelpWindow::HelpWindow(const QStringList &folders, FileSystem &files, Launcher &launcher)
    : m_folder(folders, files),
      m_launcher(launcher),
      m_navigator(new HelpNavigator(m_folder)),
      m_browser(new HelpBrowser(m_folder)),
      m_findBar(new HelpFindBar(*m_browser))
{
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(QStringLiteral("Tagwrighter Help"));
    setAttribute(Qt::WA_QuitOnClose, false);
    auto *bar = addToolBar(QStringLiteral("Help"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    addMoves(*bar);
    bar->addWidget(spacer());
    addSearchField(*bar);
    addZoom(*bar);
    addHiddenCommands();
    layOut();
    connect(m_navigator, &HelpNavigator::pageChosen, m_browser, &HelpBrowser::showPage);
    connect(m_browser, &QTextBrowser::sourceChanged, this, &HelpWindow::pageShown);
    connect(m_browser, &HelpBrowser::linkOutside, this, &HelpWindow::openOutside);
}

QAction *HelpWindow::command(const QString &text, const QString &icon, const QList<QKeySequence> &keys,
                             const std::function<void()> &run)
{
    auto *action = new QAction(icon.isEmpty() ? QIcon() : programIcon(icon), text, this);
    action->setShortcuts(keys);
    if (!keys.isEmpty())
        action->setToolTip(QStringLiteral("%1 (%2)").arg(text, keys.first().toString(QKeySequence::NativeText)));
    connect(action, &QAction::triggered, this, run);
    addAction(action);
    return action;
}

void HelpWindow::addMoves(QToolBar &bar)
{
    QAction *back = command(QStringLiteral("Back"), QStringLiteral("arrow-left"),
                            {Qt::ALT | Qt::Key_Left, Qt::Key_Back}, [this] { m_browser->backward(); });
    QAction *forward = command(QStringLiteral("Forward"), QStringLiteral("arrow-right"),
                               {Qt::ALT | Qt::Key_Right, Qt::Key_Forward}, [this] { m_browser->forward(); });
    back->setObjectName(QStringLiteral("helpBack"));
    forward->setObjectName(QStringLiteral("helpForward"));
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    bar.addActions({back, forward,
                    command(QStringLiteral("First page"), QStringLiteral("house"), {Qt::ALT | Qt::Key_Home},
                            [this] { m_browser->showPage(HelpFolder::startPage()); })});
}

void HelpWindow::addSearchField(QToolBar &bar)
{
    m_search = new QLineEdit;
    m_search->setObjectName(QStringLiteral("helpSearch"));
    m_search->setPlaceholderText(QStringLiteral("Search the help (Ctrl+K)"));
    m_search->setAccessibleName(QStringLiteral("Search the help"));
    m_search->setClearButtonEnabled(true);
    m_search->setMaximumWidth(searchWidth);
    m_search->addAction(programIcon(QStringLiteral("search")), QLineEdit::LeadingPosition);
    connect(m_search, &QLineEdit::textEdited, this, &HelpWindow::search);
    connect(m_search, &QLineEdit::returnPressed, this, &HelpWindow::openHit);
    bar.addWidget(m_search);
}

void HelpWindow::addZoom(QToolBar &bar)
{
    bar.addActions({command(QStringLiteral("Smaller text"), QStringLiteral("zoom-out"), {Qt::CTRL | Qt::Key_Minus},
                            [this] { m_browser->setZoom(m_browser->zoom() - 1); }),
                    command(QStringLiteral("Larger text"), QStringLiteral("zoom-in"),
                            {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal},
                            [this] { m_browser->setZoom(m_browser->zoom() + 1); })});
}

void HelpWindow::addHiddenCommands()
{
    command(QStringLiteral("Text of the usual size"), {}, {Qt::CTRL | Qt::Key_0}, [this] { m_browser->setZoom(0); });
    command(QStringLiteral("Find on this page"), {}, {Qt::CTRL | Qt::Key_F}, [this] { m_findBar->open(); });
    command(QStringLiteral("Find next"), {}, {Qt::Key_F3}, [this] { m_findBar->findNext(); });
    command(QStringLiteral("Find previous"), {}, {Qt::SHIFT | Qt::Key_F3}, [this] { m_findBar->findPrevious(); });
    command(QStringLiteral("Search the help"), {}, {Qt::CTRL | Qt::Key_K}, [this] {
        m_search->setFocus();
        m_search->selectAll();
    });
    command(QStringLiteral("Next part of the window"), {}, {Qt::Key_F6}, [this] { moveToNextPart(); });
    command(QStringLiteral("Close"), {}, {Qt::CTRL | Qt::Key_W}, [this] { close(); });
}

void HelpWindow::layOut()
{
    auto *reading = new QWidget;
    auto *column = new QVBoxLayout(reading);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_browser, 1);
    column->addWidget(m_findBar);
    m_findBar->hide();
    auto *halves = new QSplitter;
    halves->addWidget(m_navigator);
    halves->addWidget(reading);
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    setCentralWidget(halves);
    resize(firstSize(screen()));
    const int side = qMin(navigatorWidth, width() / 3);
    halves->setSizes({side, width() - side});
}

void HelpWindow::showTopic(const QString &topic)
{
    m_browser->showPage(helpPageOfTopic(topic).value_or(HelpFolder::notFoundPage()));
    bringUp();
    m_browser->setFocus();
}

void HelpWindow::showTab(HelpNavigator::Tab tab)
{
    if (m_browser->page().isEmpty())
        m_browser->showPage(HelpFolder::startPage());
    bringUp();
    m_navigator->openTab(tab);
}

void HelpWindow::bringUp()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void HelpWindow::pageShown(const QUrl &address)
{
    const QString title = m_browser->documentTitle();
    setWindowTitle(title.isEmpty() ? QStringLiteral("Tagwrighter Help")
                                   : title + QStringLiteral(" – Tagwrighter Help"));
    m_navigator->markPage(helpPageOfUrl(address).value_or(QString()));
}

// A page of the help may name a site, a mail address; it never opens files or programs of the machine.
void HelpWindow::openOutside(const QUrl &url)
{
    for (const char *scheme : {"http", "https", "mailto"})
        if (url.scheme() == QLatin1String(scheme))
            m_launcher.openUrl(url.toString(QUrl::FullyEncoded));
}

void HelpWindow::search(const QString &text)
{
    if (!text.trimmed().isEmpty())
        m_navigator->search(text);
}

void HelpWindow::openHit()
{
    search(m_search->text());
    m_navigator->openTab(HelpNavigator::Search);
    m_navigator->chooseHit();
}

// From the search field to the pane at the side, from there to the page, and on to the search field.
void HelpWindow::moveToNextPart()
{
    if (m_browser->hasFocus())
        m_search->setFocus();
    else if (m_search->hasFocus())
        m_navigator->openTab(static_cast<HelpNavigator::Tab>(m_navigator->currentIndex()));
    else
        m_browser->setFocus();
}

bool HelpWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowBlocked)
        stayUsable();
    return QMainWindow::event(event);
}

// A modal window shuts out every window but those that belong to it. The help is read while its question is answered,
// so that it counts as the modal window's until that one goes.
void HelpWindow::stayUsable()
{
    const QWidget *modal = QApplication::activeModalWidget();
    QWindow *question = modal ? modal->windowHandle() : nullptr;
    if (!question || !windowHandle() || windowHandle()->isAncestorOf(question, QWindow::IncludeTransients))
        return;
    windowHandle()->setTransientParent(question);
    connect(question, &QObject::destroyed, this, &HelpWindow::stayUsable, Qt::UniqueConnection);
}

void HelpWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape) {
        QMainWindow::keyPressEvent(event);
        return;
    }
    if (m_findBar->isVisible()) {
        m_findBar->hide();
        m_browser->setFocus();
    } else {
        close();
    }
}
