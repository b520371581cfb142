#pragma once

#include <chrono>
#include <ctime>

namespace Loadwick {

/// Seconds by the clock since it was made.
class Stopwatch
{
public:
    [[nodiscard]] double seconds() const
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count();
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

/// Milliseconds of processor time that this thread has used since it was made: other work on a busy
/// machine does not count.
class ProcessorTime
{
public:
    [[nodiscard]] double milliseconds() const { return now() - m_start; }

private:
    [[nodiscard]] static double now()
    {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    }

    double m_start = now();
};

} // namespace Loadwick
