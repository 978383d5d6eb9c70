#pragma once

#include <ctime>

/// What this thread has taken of the processor so far, in milliseconds. On a busy machine far more time may go by.
inline double processorMilliseconds()
{
    timespec taken = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &taken);
    return double(taken.tv_sec) * 1e3 + double(taken.tv_nsec) * 1e-6;
}
