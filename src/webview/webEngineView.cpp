#include "webview/webEngineView.h"

#include "webview/elementScripts.h"
#include "webview/enginePage.h"

#include <QAction>
#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMouseEvent>
#include <QWebEngineDownloadRequest>
#include <QWebEngineScript>
#include <QWebEngineView>
#include <csignal>

namespace
{
/// A script that gives the middle of the first place where the text stands, in a text of the page or on one of its
/// buttons, in the page's pixels from the corner of what is on view.
QString placeScript(const QString &text)
{
    static const QString script = QStringLiteral(R"((function (wanted) {
        function placeOf(where) {
            const inView = box => box.top >= 0 && box.bottom <= innerHeight && box.left >= 0 && box.right <= innerWidth;
            let box = where.getClientRects()[0];
            if (!box)
                return null;
            if (!inView(box)) {
                const holder = where.startContainer ? where.startContainer.parentElement : where;
                holder.scrollIntoView({block: 'center', inline: 'center', behavior: 'instant'});
                box = where.getClientRects()[0];
            }
            return [box.left + box.width / 2, box.top + box.height / 2];
        }
        const texts = document.createTreeWalker(document.documentElement, NodeFilter.SHOW_TEXT);
        while (texts.nextNode()) {
            const at = texts.currentNode.data.indexOf(wanted);
            if (at < 0)
                continue;
            const range = document.createRange();
            range.setStart(texts.currentNode, at);
            range.setEnd(texts.currentNode, at + wanted.length);
            const place = placeOf(range);
            if (place)
                return place;
        }
        for (const button of document.querySelectorAll('input[type=submit], input[type=button], input[type=reset]'))
            if (button.value.includes(wanted))
                return placeOf(button);
        return null;
    })(%1[0]))");
    return script.arg(QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact)));
}
} // namespace

namespace
{
constexpr int MostAttempts = 3; ///< to get past a page that ends each load in its place
}

WebEngineView::WebEngineView(QWebEngineProfile &profile, RequestGuard &guard, PageSource &source,
                             PageViewListener &listener, QWidget *parent)
    : m_source(source),
      m_listener(listener),
      m_page(new EnginePage(profile, guard, source, listener, this)),
      m_view(new QWebEngineView(m_page, parent))
{
    m_view->setContextMenuPolicy(Qt::NoContextMenu); // it would offer to save pages and to show their source
    m_view->setAcceptDrops(false);                   // what is dropped belongs to the editor, or is opened by it
    followPage();
}

WebEngineView::~WebEngineView()
{
    end();
    if (m_forget)
        m_forget(this);
}

void WebEngineView::followPage()
{
    connect(m_page, &QWebEnginePage::loadStarted, this, &WebEngineView::loadStarted);
    connect(m_page, &QWebEnginePage::loadFinished, this, &WebEngineView::loadFinished);
    connect(m_page, &QWebEnginePage::urlChanged, this,
            [this](const QUrl &url) { m_listener.addressChanged(m_source.ownAddress(url)); });
    connect(m_page, &QWebEnginePage::renderProcessTerminated, this, &WebEngineView::terminated);
    connect(m_page, &QWebEnginePage::windowCloseRequested, this, [this] { m_listener.closeAsked(); });
}

void WebEngineView::end()
{
    if (m_page)
        m_page->disconnect(this);
    delete m_view;
    delete m_page;
}

QWidget *WebEngineView::widget()
{
    return m_view;
}

void WebEngineView::load(const QUrl &address)
{
    if (!m_page)
        return;
    m_keepsPlace = m_page->url() == m_loaded;
    m_place = m_page->scrollPosition();
    m_loaded = m_source.servedAddress(address);
    m_isLoading = true;
    m_attempts = MostAttempts;
    m_left = m_page->url();
    m_page->letOwn(m_loaded);
    m_page->setUrl(m_loaded);
}

void WebEngineView::back()
{
    goByHistory(QWebEnginePage::Back);
}

void WebEngineView::forward()
{
    goByHistory(QWebEnginePage::Forward);
}

void WebEngineView::goByHistory(QWebEnginePage::WebAction action)
{
    if (!m_page || !m_page->action(action)->isEnabled())
        return;
    m_page->letOwn({});
    m_page->triggerAction(action);
}

void WebEngineView::stop()
{
    if (m_page)
        m_page->triggerAction(QWebEnginePage::Stop);
}

void WebEngineView::reload()
{
    if (!m_page)
        return;
    m_page->letOwn(m_page->url());
    m_page->triggerAction(QWebEnginePage::Reload);
}

void WebEngineView::ask(std::function<void()> answered)
{
    if (m_page)
        m_page->runJavaScript(QStringLiteral("0"), QWebEngineScript::ApplicationWorld,
                              [answered = std::move(answered)](const QVariant &answer) {
                                  if (answer.isValid()) // nothing comes for a page that has gone meanwhile
                                      answered();
                              });
}

void WebEngineView::text(std::function<void(const QString &)> taken)
{
    if (m_page)
        m_page->toPlainText(taken);
}

void WebEngineView::place(const QString &text, std::function<void(const std::optional<QPoint> &)> taken)
{
    if (!m_page)
        return;
    m_page->runJavaScript(placeScript(text), QWebEngineScript::ApplicationWorld,
                          [taken = std::move(taken), zoom = m_page->zoomFactor()](const QVariant &answer) {
                              const QVariantList place = answer.toList();
                              if (place.size() == 2)
                                  taken((QPointF(place[0].toDouble(), place[1].toDouble()) * zoom).toPoint());
                              else
                                  taken({});
                          });
}

void WebEngineView::mark(const ElementPath &path)
{
    if (m_page)
        m_page->runJavaScript(markScript(path), QWebEngineScript::ApplicationWorld);
}

void WebEngineView::markedText(std::function<void(const QString &)> taken)
{
    if (m_page)
        m_page->runJavaScript(markedTextScript(), QWebEngineScript::ApplicationWorld,
                              [taken = std::move(taken)](const QVariant &answer) { taken(answer.toString()); });
}

/// The widget that the engine shows pages in comes and goes with their processes.
void WebEngineView::watchClicks()
{
    QWidget *shown = m_view ? m_view->focusProxy() : nullptr;
    if (!shown)
        return;
    shown->removeEventFilter(this);
    shown->installEventFilter(this);
}

/// The element is asked for when the button goes down: when it comes up, the page may go elsewhere, or scroll.
bool WebEngineView::eventFilter(QObject *watched, QEvent *event)
{
    const auto *mouse = dynamic_cast<QMouseEvent *>(event);
    const bool isLeft = mouse && mouse->button() == Qt::LeftButton;
    if (isLeft && event->type() == QEvent::MouseButtonPress)
        askForElement(mouse->position());
    if (isLeft && event->type() == QEvent::MouseButtonRelease &&
        (mouse->position() - m_pressed).manhattanLength() < QApplication::startDragDistance()) {
        m_isClick = true;
        tellClick();
    }
    return QObject::eventFilter(watched, event);
}

void WebEngineView::askForElement(const QPointF &place)
{
    m_pressed = place;
    m_isClick = false;
    m_pressedPath.clear();
    if (!m_page)
        return;
    const auto take = [self = QPointer(this), press = ++m_presses](const QVariant &answer) {
        if (!self || self->m_presses != press)
            return;
        self->m_pressedPath = pathOf(answer);
        self->tellClick();
    };
    m_page->runJavaScript(elementScript(place / m_page->zoomFactor()), QWebEngineScript::ApplicationWorld, take);
}

void WebEngineView::tellClick()
{
    if (!m_isClick || m_pressedPath.isEmpty())
        return;
    m_isClick = false;
    m_listener.elementClicked(m_pressedPath);
}

int WebEngineView::scrollTop() const
{
    return m_page ? qRound(m_page->scrollPosition().y()) : 0;
}

void WebEngineView::sendForm(std::function<void(bool)> sent)
{
    if (m_page)
        m_page->sendForm(std::move(sent));
}

void WebEngineView::endPage()
{
    if (m_page && m_page->renderProcessPid() > 0)
        killPage();
    else
        ended();
}

void WebEngineView::killPage()
{
    ::kill(static_cast<pid_t>(m_page->renderProcessPid()), SIGKILL);
}

void WebEngineView::loadStarted()
{
    m_ended = false;
    m_listener.loadStarted();
}

void WebEngineView::loadFinished(bool whole)
{
    if (m_ended) // the end of the page was told already
        return;
    if (isCutShort()) {
        loadInAnotherProcess();
        return;
    }
    m_isLoading = m_isLoading && !(whole && m_page->url() != m_left);
    restorePlace();
    watchClicks();
    m_listener.loadFinished();
}

/// Each attempt of a page to go elsewhere, which it is not let, ends what loads in its place: it could stay for ever.
bool WebEngineView::isCutShort() const
{
    return m_isLoading && m_left != m_loaded && m_page->url() == m_left && m_page->isRestless() &&
           m_page->renderProcessPid() > 0;
}

void WebEngineView::loadInAnotherProcess()
{
    m_isLoading = --m_attempts > 0;
    m_comesAnew = true;
    killPage();
}

/// The engine keeps the place of a page that is loaded again, but for a rounding that would let the page creep.
void WebEngineView::restorePlace()
{
    if (!std::exchange(m_keepsPlace, false) || m_place.isNull())
        return;
    m_page->runJavaScript(QStringLiteral("scrollTo(%1, %2)").arg(m_place.x()).arg(m_place.y()),
                          QWebEngineScript::ApplicationWorld);
}

/// Processes of pages are made by one that the engine started with. Where that is gone, none can be made.
void WebEngineView::terminated(QWebEnginePage::RenderProcessTerminationStatus status)
{
    constexpr int CouldNotBeMade = -1; // has no name among the engine's own
    if (static_cast<int>(status) != CouldNotBeMade) {
        if (std::exchange(m_comesAnew, false))
            comeAnew();
        else
            ended();
        return;
    }
    m_ended = true;
    QMetaObject::invokeMethod(
        this, [this] { m_listener.engineEnded(); }, Qt::QueuedConnection);
}

/// From the event loop, for the same reason as below.
void WebEngineView::comeAnew()
{
    const auto load = [this] {
        if (!m_page)
            return;
        m_page->letOwn(m_loaded);
        m_page->setUrl(m_loaded);
    };
    QMetaObject::invokeMethod(this, load, Qt::QueuedConnection);
}

/// Tells it from the event loop, as a page cannot be loaded again while its end is being dealt with.
void WebEngineView::ended()
{
    m_ended = true;
    const auto tell = [this] {
        if (m_ended)
            m_listener.pageEnded();
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void WebEngineView::tellDownload(const QWebEngineDownloadRequest &download)
{
    if (download.page() == m_page)
        m_listener.downloadRefused(m_source.ownAddress(download.url()));
}

/// Whether it is a page of the folder whose page is on show, or about to be.
bool WebEngineView::shows(const QUrl &page) const
{
    return m_page && !page.host().isEmpty() && (page.host() == m_page->url().host() || page.host() == m_loaded.host());
}

void WebEngineView::tellOtherHost(const QUrl &page, const QUrl &address, bool shown)
{
    if (!shows(page))
        return;
    if (shown)
        m_listener.otherHostShown(address);
    else
        m_listener.otherHostRefused(address);
}

void WebEngineView::tellHeldBack(const QUrl &page, const QUrl &address)
{
    if (shows(page))
        m_listener.fileRefused(m_source.ownAddress(address));
}
