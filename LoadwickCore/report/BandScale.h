#pragma once

#include <cstdint>

/// Places totals and thresholds on a meter whose right end grows with the total in fixed steps.
namespace Loadwick::BandScale {

inline constexpr std::int64_t normalMaximum = 90'000; ///< tokens; the smallest right end
inline constexpr std::int64_t step = 30'000;          ///< tokens

/// The next multiple of `step` strictly above `total`, never below `normalMaximum`; the largest
/// 64-bit integer where that multiple does not fit.
[[nodiscard]] std::int64_t maximum(std::int64_t total) noexcept;

/// `total` as a fraction of its own maximum, in [0, 1].
[[nodiscard]] double position(std::int64_t total) noexcept;

/// `threshold` as a fraction of the maximum for `total`, in [0, 1].
[[nodiscard]] double thresholdPosition(std::int64_t threshold, std::int64_t total) noexcept;

} // namespace Loadwick::BandScale
