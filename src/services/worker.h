#pragma once

#include <functional>

/// Does work beside the user interface, one piece after the other in the order in which they come.
class Worker
{
public:
    Worker() = default;
    Worker(const Worker &) = delete;
    Worker &operator=(const Worker &) = delete;
    virtual ~Worker() = default;

    /// Runs `work` elsewhere, behind what waits already, and then `done` where this was called from. `work` owns all
    /// that it looks at: nothing of the user interface may be touched by it. Without an event loop `done` never runs.
    virtual void run(std::function<void()> work, std::function<void()> done) = 0;
    /// Returns once all work is done. What `done` functions are left run later.
    virtual void finish() = 0;
};

/// Does the work at once, where nothing is to happen by itself.
class InlineWorker final : public Worker
{
public:
    void run(std::function<void()> work, std::function<void()> done) override
    {
        work();
        done();
    }
    void finish() override {}
};
