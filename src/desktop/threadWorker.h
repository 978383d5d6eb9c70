#pragma once

#include "services/worker.h"

#include <QObject>
#include <QThreadPool>

/// Works in a thread that is there only while there is something to do.
class ThreadWorker final : public Worker
{
public:
    ThreadWorker();
    ~ThreadWorker() override;

    void run(std::function<void()> work, std::function<void()> done) override;
    void finish() override;

private:
    QThreadPool m_thread;
    QObject m_home; ///< lives where the answers run
};
