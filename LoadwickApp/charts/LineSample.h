#pragma once

#include <chrono>
#include <cstdint>

namespace Loadwick {

/// What one point of a line chart stands for.
struct LineSample
{
    std::chrono::sys_seconds date;
    std::int64_t total; ///< tokens

    friend bool operator==(const LineSample &, const LineSample &) = default;
};

} // namespace Loadwick
