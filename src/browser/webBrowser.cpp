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
constexpr qsizetype LongestMessage = 200;

constexpr int Second = 1000;              // milliseconds
constexpr int MostOwnNavigations = 10;    // in a second; a page that goes on by itself does so once or twice
constexpr int MostSlowNavigations = 40;   // in ten seconds, where pages take their time to load
constexpr int MostFrameNavigations = 300; // in five seconds; a page of many advertisements has fifty frames
// What a page's scripts report takes memory of the program's own until it is dealt with. An error in every picture of
// an animation is six hundred in ten seconds.
constexpr int MostConsoleLines = 1000;      // in ten seconds
constexpr qsizetype ConsoleLine = 500;      // characters; a longer error counts as several lines
constexpr qsizetype LongestError = 500'000; // characters; a longer one counts as this

QUrl addressOf(const QString &target)
{
    if (target.startsWith(u'/'))
        return QUrl::fromLocalFile(target);
    const QUrl url(target);
    return url.scheme().size() > 1 ? url : QUrl::fromUserInput(target);
}

QString shortened(const QString &text)
{
    const QString line = text.simplified();
    return line.size() <= LongestMessage ? line : line.left(LongestMessage) + QChar(0x2026);
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

void WebBrowser::pageEnded()
{
    const QString whyStopped = std::exchange(m_whyStopped, {});
    m_loading = false;
    m_gone = true;
    m_watch.stop();
    showView(false);
    if (m_waiting) {
        loadWaiting();
        return;
    }
    tell(whyStopped.isEmpty() ? QStringLiteral("The page has ended: the process that showed it is gone.") : whyStopped,
         true);
    Q_EMIT navigationFinished();
}

void WebBrowser::engineEnded()
{
    m_waiting.reset();
    m_engineGone = true;
    m_again->setText(QStringLiteral("&Start Anew"));
    m_whyStopped =
        QStringLiteral("The preview has come to an end, and shows pages again when Tagwrighter is started anew.");
    pageEnded();
}

void WebBrowser::closeAsked()
{
    Navigate(QStringLiteral("about:blank"));
}

void WebBrowser::messageGiven(const QString &message)
{
    tell(QStringLiteral("The page says: %1").arg(shortened(message)), false);
}

void WebBrowser::downloadRefused(const QUrl &address)
{
    tell(QStringLiteral("This is no page, and is not downloaded: %1").arg(shortened(address.toDisplayString())), false);
}

void WebBrowser::navigates(bool inFrame)
{
    if (inFrame) {
        if (m_frameNavigations.happens())
            stopPage(QStringLiteral("This page loaded frames without end, so it was stopped."));
        return;
    }
    const bool tooFast = m_ownNavigations.happens();
    if (m_slowNavigations.happens() || tooFast)
        stopPage(QStringLiteral("This page loaded itself again and again, so it was stopped."));
}

void WebBrowser::consoleWritten(qsizetype length)
{
    bool tooMany = false;
    for (qsizetype lines = 1 + std::min(length, LongestError) / ConsoleLine; lines > 0; --lines)
        tooMany = m_consoleLines.happens() || tooMany;
    if (tooMany)
        stopPage(QStringLiteral("This page reported errors without end, so it was stopped."));
}

void WebBrowser::stopPage(const QString &reason)
{
    if (!m_whyStopped.isEmpty() || m_gone)
        return;
    m_whyStopped = reason;
    m_view->endPage();
}

/// Asks from the event loop: the engine waits for an answer of ours, and the page may go on or end while the user
/// thinks.
void WebBrowser::formHeldBack(const QUrl &where)
{
    if (m_isAsking)
        return;
    if (m_hasSaidNo) {
        tellOfPage(QStringLiteral("Nothing was sent to \"%1\". Load the page again to be asked.").arg(where.host()));
        return;
    }
    m_isAsking = true;
    QMetaObject::invokeMethod(
        this, [this, where] { askToSend(where); }, Qt::QueuedConnection);
}

void WebBrowser::askToSend(const QUrl &where)
{
    const QPointer<WebBrowser> self(this);
    const bool yes = m_maySend && m_maySend(where);
    if (!self)
        return;
    m_isAsking = false;
    m_hasSaidNo = !yes;
    if (yes)
        sendForm(where);
}

void WebBrowser::sendForm(const QUrl &where)
{
    m_view->sendForm([self = QPointer<WebBrowser>(this), host = where.host()](bool sent) {
        if (self && !sent)
            self->tellOfPage(QStringLiteral("Nothing was sent to \"%1\": the page has that form no more.").arg(host));
    });
}

void WebBrowser::linkRefused(const QUrl &address)
{
    tellOfPage(QStringLiteral("The preview does not go there: %1").arg(shortened(address.toDisplayString())));
}

void WebBrowser::otherHostRefused(const QUrl &)
{
    Q_EMIT otherHostsNamed(false);
}

void WebBrowser::otherHostShown(const QUrl &)
{
    Q_EMIT otherHostsNamed(true);
}

void WebBrowser::fileRefused(const QUrl &address)
{
    tellOfPage(QStringLiteral("The preview shows files of the page's own folder and below, so this one is missing: %1")
                   .arg(shortened(address.toLocalFile())));
}

/// Tells what the page did, unless something else is on show that the page did not do.
void WebBrowser::tellOfPage(const QString &notice)
{
    if (!m_gone)
        tell(notice, false);
}

void WebBrowser::tell(const QString &notice, bool canLoadAgain)
{
    m_notice->setText(notice);
    m_again->setVisible(canLoadAgain);
    m_strip->show();
}
