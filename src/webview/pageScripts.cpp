#include "webview/pageScripts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>
#include <QWebEngineScript>

namespace
{
QWebEngineScript scriptAtStart(const QString &name, const QString &source, quint32 world, bool inFrames)
{
    QWebEngineScript script;
    script.setName(name);
    script.setSourceCode(source);
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(world);
    script.setRunsOnSubFrames(inFrames);
    return script;
}

/// A text as a script's literal.
QString literal(const QString &text)
{
    return QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact)) + QStringLiteral("[0]");
}
} // namespace

QWebEngineScript withoutWaysOut()
{
    return scriptAtStart(QStringLiteral("withoutWaysOut"), QStringLiteral(R"(
for (const name of ['RTCPeerConnection', 'webkitRTCPeerConnection', 'RTCDataChannel', 'RTCSessionDescription',
                    'RTCIceCandidate', 'SharedWorker', 'WebTransport'])
    delete window[name];
delete Navigator.prototype.serviceWorker;
for (const name of Object.getOwnPropertyNames(console))
    if (typeof console[name] === 'function')
        console[name] = () => {};
)"),
                         QWebEngineScript::MainWorld, true);
}

QWebEngineScript notesForms()
{
    return scriptAtStart(QStringLiteral("notesForms"), QStringLiteral(R"(
var noted = null;
addEventListener('submit', event => { noted = {form: event.target, button: event.submitter}; }, true);
)"),
                         QWebEngineScript::ApplicationWorld, false);
}

// A form's fields can hide its properties, as they bear names of their own choice: what is asked of it is asked by the
// prototypes' functions.
QString sendsForm(const QUrl &address)
{
    return QStringLiteral(R"(
(function (address) {
    const place = text => { const url = new URL(text, document.baseURI); return url.origin + url.pathname; };
    const attribute = (element, name) => Element.prototype.getAttribute.call(element, name);
    const goesThere = (element, name) => {
        try { return place(attribute(element, name) || '') === place(address); } catch (e) { return false; }
    };
    const byButton = noted && noted.button && attribute(noted.button, 'formaction') !== null;
    if (noted && document.contains(noted.form) &&
        (byButton ? goesThere(noted.button, 'formaction') : goesThere(noted.form, 'action'))) {
        HTMLFormElement.prototype.requestSubmit.call(noted.form, noted.button || undefined);
        return true;
    }
    for (const form of document.forms)
        if (goesThere(form, 'action')) {
            HTMLFormElement.prototype.submit.call(form);
            return true;
        }
    return false;
})(%1)
)")
        .arg(literal(address.toString(QUrl::FullyEncoded)));
}
