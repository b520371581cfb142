#pragma once

#include <chrono>

namespace Loadwick {

/// Seconds since it was made.
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

} // namespace Loadwick
