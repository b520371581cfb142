#pragma once

#include <cstdint>

namespace Loadwick {

/// How much of its band scale a total leaves free, in whole hundredths cut off: 100 for nothing, 0
/// at the scale's end. An illustration of the total, not a second measurement.
[[nodiscard]] int headroomScore(std::int64_t total) noexcept;

} // namespace Loadwick
