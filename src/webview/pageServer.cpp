#include "webview/pageServer.h"

#include "services/pageView.h"
#include "webview/pagePolicy.h"

#include <QUrl>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

namespace
{
void reply(QWebEngineUrlRequestJob &job, const QByteArray &type, QIODevice *bytes)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    QMultiMap<QByteArray, QByteArray> headers;
    for (const PageHeader &header : pageHeaders())
        headers.insert(header.name, header.value);
    job.setAdditionalResponseHeaders(headers);
    job.reply(type, bytes);
#else
    // There is no other place for headers than behind the media type. The name of a character set, which the engine
    // takes out of it, has to be one that it does not know, so that the page's own word holds.
    QByteArray headers = "; charset=-";
    for (const PageHeader &header : pageHeaders())
        headers += QByteArray("\n") + header.name + ": " + header.value;
    job.reply(type + headers, bytes);
#endif
}
} // namespace

PageServer::PageServer(PageSource &source, QObject *parent) : QWebEngineUrlSchemeHandler(parent), m_source(source) {}

// No flag is set: such a page is no safe place, where it would be offered more, and has no way to files.
void PageServer::registerScheme()
{
    QWebEngineUrlScheme scheme{QByteArray(PageScheme)};
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
    scheme.setFlags({});
    QWebEngineUrlScheme::registerScheme(scheme);
}

void PageServer::requestStarted(QWebEngineUrlRequestJob *job)
{
    const QUrl address = job->requestUrl();
    std::optional<PagePart> part = m_source.open(address);
    if (!part) {
        if (m_source.holdsBack(address))
            Q_EMIT heldBack(job->initiator(), address);
        job->fail(QWebEngineUrlRequestJob::UrlNotFound);
        return;
    }
    QIODevice *bytes = part->bytes.release();
    connect(job, &QObject::destroyed, bytes, &QObject::deleteLater);
    reply(*job, part->type, bytes);
}
