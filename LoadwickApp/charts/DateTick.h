#pragma once

#include <chrono>
#include <string>

namespace Loadwick {

/// A moment that an axis of dates names.
struct DateTick
{
    std::chrono::sys_seconds moment;
    std::string label;

    friend bool operator==(const DateTick &, const DateTick &) = default;
};

} // namespace Loadwick
