#pragma once

#include <ctime>

namespace Loadwick {

/// Milliseconds of processor time that this thread has used since it was made: what others do on a
/// busy machine does not count.
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
