#include "transfers/curlMulti.h"

#include <QSocketNotifier>

CurlMulti::CurlMulti()
{
    curl_global_init(CURL_GLOBAL_DEFAULT);
    m_multi = curl_multi_init();
    curl_multi_setopt(m_multi, CURLMOPT_SOCKETFUNCTION, &CurlMulti::socketChanged);
    curl_multi_setopt(m_multi, CURLMOPT_SOCKETDATA, this);
    curl_multi_setopt(m_multi, CURLMOPT_TIMERFUNCTION, &CurlMulti::timerChanged);
    curl_multi_setopt(m_multi, CURLMOPT_TIMERDATA, this);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { act(CURL_SOCKET_TIMEOUT, 0); });
}

CurlMulti::~CurlMulti()
{
    for (CURL *easy : m_waiting.keys())
        remove(easy);
    curl_multi_cleanup(m_multi);
}

void CurlMulti::add(CURL *easy, QObject *receiver, const Done &done)
{
    m_waiting.insert(easy, {receiver, done});
    curl_multi_add_handle(m_multi, easy);
}

void CurlMulti::remove(CURL *easy)
{
    if (m_waiting.remove(easy) > 0)
        curl_multi_remove_handle(m_multi, easy);
}

int CurlMulti::socketChanged(CURL *, curl_socket_t socket, int what, void *self, void *)
{
    auto *multi = static_cast<CurlMulti *>(self);
    if (what == CURL_POLL_REMOVE)
        multi->unwatch(socket);
    else
        multi->watch(socket, what & CURL_POLL_IN, what & CURL_POLL_OUT);
    return 0;
}

int CurlMulti::timerChanged(CURLM *, long milliseconds, void *self)
{
    auto *multi = static_cast<CurlMulti *>(self);
    if (milliseconds < 0)
        multi->m_timer.stop();
    else
        multi->m_timer.start(static_cast<int>(qMin(milliseconds, 60'000L)));
    return 0;
}

void CurlMulti::watch(curl_socket_t socket, bool read, bool write)
{
    Watch &watch = m_watches[socket];
    if (!watch.read) {
        watch.read = new QSocketNotifier(socket, QSocketNotifier::Read, this);
        watch.write = new QSocketNotifier(socket, QSocketNotifier::Write, this);
        connect(watch.read, &QSocketNotifier::activated, this, [this, socket] { act(socket, CURL_CSELECT_IN); });
        connect(watch.write, &QSocketNotifier::activated, this, [this, socket] { act(socket, CURL_CSELECT_OUT); });
    }
    watch.read->setEnabled(read);
    watch.write->setEnabled(write);
}

void CurlMulti::unwatch(curl_socket_t socket)
{
    const Watch watch = m_watches.take(socket);
    for (QSocketNotifier *notifier : {watch.read, watch.write})
        if (notifier) {
            notifier->setEnabled(false);
            notifier->deleteLater(); // its own signal may be what brought us here
        }
}

void CurlMulti::act(curl_socket_t socket, int mask)
{
    int running = 0;
    curl_multi_socket_action(m_multi, socket, mask, &running);
    takeResults();
}

void CurlMulti::takeResults()
{
    int left = 0;
    while (const CURLMsg *message = curl_multi_info_read(m_multi, &left)) {
        if (message->msg != CURLMSG_DONE)
            continue;
        const CURLcode result = message->data.result;
        CURL *easy = message->easy_handle;
        const Waiting waiting = m_waiting.value(easy);
        remove(easy);
        if (waiting.receiver)
            QMetaObject::invokeMethod(
                waiting.receiver, [done = waiting.done, result] { done(result); }, Qt::QueuedConnection);
    }
}
