#include "browser/webBrowser.h"

#include "browser/pageFocus.h"
#include "services/pageViews.h"

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{
constexpr int UsualPatience = 5000; ///< milliseconds; pages that build themselves by script can take a second or two
constexpr int WatchesPerPatience = 5;
/// A page that loads for longer than this, an image on a slow server perhaps, holds a newer one up no more.
constexpr int SlowLoad = 2000; // milliseconds

constexpr int Second = 1000;              // milliseconds
constexpr int MostOwnNavigations = 10;    // in a second; a page that goes on by itself does so once or twice
constexpr int MostSlowNavigations = 40;   // in ten seconds, where pages take their time to load
constexpr int MostFrameNavigations = 300; // in five seconds; a page of many advertisements has fifty frames
// What a page's scripts report takes memory of the program's own until it is dealt with. An error in every picture of
// an animation is six hundred in ten seconds.
constexpr int MostConsoleLines = 1000; // in ten seconds

QUrl addressOf(const QString &target)
{
    if (target.startsWith(u'/'))
        return QUrl::fromLocalFile(target);
    const QUrl url(target);
    return url.scheme().size() > 1 ? url : QUrl::fromUserInput(target);
}
} // namespace

WebBrowser::WebBrowser(PageViews &views, QWidget *parent)
    : QWidget(parent),
      m_views(views),
      m_layout(new QVBoxLayout(this)),
      m_strip(new QFrame(this)),
      m_notice(new QLabel(m_strip)),
      m_again(new QPushButton(QStringLiteral("&Load Again"), m_strip)),
      m_patience(UsualPatience),
      m_ownNavigations(MostOwnNavigations, Second),
      m_slowNavigations(MostSlowNavigations, 10 * Second),
      m_frameNavigations(MostFrameNavigations, 5 * Second),
      m_consoleLines(MostConsoleLines, 10 * Second)
{
    note(QUrl(QStringLiteral("about:blank")));
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_strip);
    m_layout->addStretch();
    auto *line = new QHBoxLayout(m_strip);
    line->addWidget(m_notice, 1);
    line->addWidget(m_again);
    m_strip->setAutoFillBackground(true);
    m_strip->setBackgroundRole(QPalette::Window);
    m_strip->hide();
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->setWordWrap(true);
    connect(m_again, &QPushButton::clicked, this, &WebBrowser::Refresh);
    connect(&m_watch, &QTimer::timeout, this, &WebBrowser::watch);
    setPatience(UsualPatience);
}

WebBrowser::~WebBrowser() = default;

void WebBrowser::setPatience(int milliseconds)
{
    m_patience = milliseconds;
    m_watch.setInterval(milliseconds / WatchesPerPatience);
}

QString WebBrowser::Notice() const
{
    return m_strip->isHidden() ? QString() : m_notice->text();
}

void WebBrowser::note(const QUrl &address)
{
    m_address = address;
    m_location = QString::fromLatin1(address.toEncoded());
}

void WebBrowser::Navigate(const QString &target)
{
    m_hasSaidNo = false;
    Follow(target);
}

void WebBrowser::Follow(const QString &target)
{
    note(addressOf(target));
    if (!m_loading)
        load(m_address);
    else
        m_waiting = m_address;
}

void WebBrowser::NavigateIfRunning(const QString &target)
{
    if (m_view)
        Follow(target);
    else
        note(addressOf(target));
}

void WebBrowser::GoBack()
{
    m_hasSaidNo = false;
    if (m_view)
        m_view->back();
}

void WebBrowser::GoForward()
{
    m_hasSaidNo = false;
    if (m_view)
        m_view->forward();
}

void WebBrowser::Stop()
{
    m_waiting.reset();
    if (m_view)
        m_view->stop();
}

void WebBrowser::Refresh()
{
    m_hasSaidNo = false;
    if (m_engineGone)
        Q_EMIT startAnewWanted();
    else if (m_view && !m_gone)
        m_view->reload();
    else if (m_view || m_location != u"about:blank")
        load(m_address);
}

void WebBrowser::pageText(const std::function<void(const QString &)> &taken)
{
    if (m_view && !m_gone)
        m_view->text(taken);
    else
        taken({});
}

void WebBrowser::placeOfText(const QString &text, const std::function<void(const std::optional<QPoint> &)> &taken)
{
    if (!m_view || m_gone) {
        taken({});
        return;
    }
    m_view->place(text, [self = QPointer(this), taken](const std::optional<QPoint> &found) {
        QWidget *view = self && self->m_view ? self->m_view->widget() : nullptr;
        taken(found && view ? std::optional(view->mapTo(self, *found)) : std::nullopt);
    });
}

void WebBrowser::mark(const ElementPath &path)
{
    if (m_view && !m_gone && !m_loading)
        m_view->mark(path);
}

void WebBrowser::markedText(const std::function<void(const QString &)> &taken)
{
    if (m_view && !m_gone)
        m_view->markedText(taken);
    else
        taken({});
}

int WebBrowser::ScrollTop() const
{
    return m_view && !m_gone ? m_view->scrollTop() : 0;
}

bool WebBrowser::isFocusHeld() const
{
    return m_focus && m_focus->isHeld();
}

void WebBrowser::releaseFocus()
{
    if (m_focus)
        m_focus->release();
}

bool WebBrowser::makeView()
{
    if (m_view)
        return true;
    PageEngine *engine = m_views.engine();
    if (!engine) {
        tell(m_views.reasonForNone(), false);
        return false;
    }
    m_view = engine->makeView(*this, this);
    showView(false); // until its first page there would be only a white sheet to see
    m_layout->insertWidget(1, m_view->widget(), 1);
    m_focus = new PageFocus(*m_view->widget());
    connect(m_focus, &PageFocus::taken, this, &WebBrowser::focusTaken);
    return true;
}

/// The keyboard goes on to the view only where there is one to see: a proxy gets it, hidden or not.
void WebBrowser::showView(bool shown)
{
    QWidget *widget = m_view->widget();
    if (!widget)
        return;
    const bool waits = shown && QApplication::focusWidget() == this;
    if (!shown)
        setFocusProxy(nullptr);
    widget->setVisible(shown);
    if (waits) // where the keyboard has been put here, it was for the page
        widget->setFocus(Qt::ShortcutFocusReason);
    if (shown)
        setFocusProxy(widget);
}

void WebBrowser::load(const QUrl &address)
{
    m_waiting.reset();
    m_whyStopped.clear();
    m_strip->hide();
    m_ownNavigations.forget();
    m_slowNavigations.forget();
    m_frameNavigations.forget();
    m_consoleLines.forget();
    if (!makeView())
        return;
    m_gone = false;
    m_loading = true;
    m_sinceStart.start();
    m_sinceAsked.invalidate();
    m_watch.start();
    m_view->load(address);
}

void WebBrowser::loadWaiting()
{
    if (m_waiting)
        load(QUrl(*m_waiting));
}

void WebBrowser::loadStarted()
{
    m_loading = true;
    m_sinceStart.start();
    m_sinceAsked.invalidate();
    m_watch.start();
    Q_EMIT navigationStarted();
}

void WebBrowser::loadFinished()
{
    m_loading = false;
    m_watch.stop();
    if (!m_gone)
        showView(true);
    Q_EMIT navigationFinished();
    loadWaiting();
}

void WebBrowser::addressChanged(const QUrl &address)
{
    if (!m_waiting)
        note(address);
}

/// Looks after a page that is being loaded.
void WebBrowser::watch()
{
    if (m_sinceAsked.isValid()) {
        if (!m_sinceAsked.hasExpired(m_patience))
            return;
        stopPage(QStringLiteral("A script of this page did not come to an end, so the page was stopped."));
        return;
    }
    const bool slow = m_sinceStart.hasExpired(SlowLoad);
    if (slow)
        showView(true);
    if (slow && m_waiting)
        loadWaiting();
    else
        askPage();
}

void WebBrowser::askPage()
{
    m_sinceAsked.start();
    m_view->ask([this] { m_sinceAsked.invalidate(); });
}
