#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <curl/curl.h>
#include <functional>

class QSocketNotifier;

/// The transfers of the program, all on its one thread: the event loop watches their sockets and their clock.
class CurlMulti final : public QObject
{
    Q_OBJECT
public:
    using Done = std::function<void(CURLcode)>;

    CurlMulti();
    ~CurlMulti() override;

    /// Takes up a transfer that is ready to go. `done` is called from the event loop once it is over, unless `receiver`
    /// has gone or the transfer was removed.
    void add(CURL *easy, QObject *receiver, const Done &done);
    /// Breaks a transfer off, or forgets one that is over.
    void remove(CURL *easy);

private:
    struct Watch {
        QSocketNotifier *read = nullptr;
        QSocketNotifier *write = nullptr;
    };
    struct Waiting {
        QPointer<QObject> receiver;
        Done done;
    };

    static int socketChanged(CURL *, curl_socket_t socket, int what, void *self, void *);
    static int timerChanged(CURLM *, long milliseconds, void *self);
    void watch(curl_socket_t socket, bool read, bool write);
    void unwatch(curl_socket_t socket);
    void act(curl_socket_t socket, int mask);
    void takeResults();

    CURLM *m_multi = nullptr;
    QTimer m_timer;
    QHash<curl_socket_t, Watch> m_watches;
    QHash<CURL *, Waiting> m_waiting;
};
