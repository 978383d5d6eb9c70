// What a page does by itself, and what the user is told of it.
#include "browser/webBrowser.h"

#include "services/pageViews.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <algorithm>
#include <utility>

namespace
{
constexpr qsizetype LongestMessage = 200;
constexpr qsizetype ConsoleLine = 500;      // characters; a longer error counts as several lines
constexpr qsizetype LongestError = 500'000; // characters; a longer one counts as this

QString shortened(const QString &text)
{
    const QString line = text.simplified();
    return line.size() <= LongestMessage ? line : line.left(LongestMessage) + QChar(0x2026);
}
} // namespace

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

void WebBrowser::elementClicked(const ElementPath &path)
{
    Q_EMIT clickedAt(path);
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
