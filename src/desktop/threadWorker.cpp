#include "desktop/threadWorker.h"

#include <QMetaObject>
#include <utility>

namespace
{
constexpr int IdleMilliseconds = 5000;
} // namespace

ThreadWorker::ThreadWorker()
{
    m_thread.setMaxThreadCount(1); // which keeps the order
    m_thread.setExpiryTimeout(IdleMilliseconds);
}

ThreadWorker::~ThreadWorker()
{
    m_thread.waitForDone();
}

void ThreadWorker::run(std::function<void()> work, std::function<void()> done)
{
    m_thread.start([this, work = std::move(work), done = std::move(done)] {
        work();
        QMetaObject::invokeMethod(&m_home, done, Qt::QueuedConnection);
    });
}

void ThreadWorker::finish()
{
    m_thread.waitForDone();
}
