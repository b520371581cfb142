#pragma once

#include <array>

/// Where the parts of the band meter lie. Places and widths are in pixels from the meter's left
/// end, positions are fractions of its width.
namespace Loadwick::BandMeterGeometry {

inline constexpr double markerSide = 12;
inline constexpr double labelGap = 8; ///< the least room between two labels

/// The meter and what it measures.
struct Meter
{
    double width;
    std::array<double, 2> thresholds; ///< positions, in ascending order
    double position;                  ///< of the total
};

/// A stretch of the meter.
struct Extent
{
    double left;
    double width;

    [[nodiscard]] double right() const noexcept { return left + width; }
    [[nodiscard]] double middle() const noexcept { return left + width / 2; }

    friend bool operator==(const Extent &, const Extent &) = default;
};

/// A label under its segment. One that is not shown has no place.
struct Label
{
    Extent extent;
    bool isShown;
};

/// Lean, heavy and excessive, from left to right; together the whole meter. A segment may be empty.
[[nodiscard]] std::array<Extent, 3> segments(const Meter &meter) noexcept;

/// Where the segments meet.
[[nodiscard]] std::array<double, 2> ticks(const Meter &meter) noexcept;

/// The left edge of the marker of a position, which keeps the marker on the meter. On a meter
/// narrower than the marker it is 0.
[[nodiscard]] double markerLeft(double width, double position) noexcept;

/// Places labels of these widths under the middles of their segments. A label gives way at the
/// meter's ends and beside a label that came before it; one that would then no longer stand under
/// the middle of its own segment is not shown. The band of the total comes first, then the others
/// by the room that their segments have. Shown labels keep `labelGap` apart and lie on the meter.
[[nodiscard]] std::array<Label, 3> labels(const Meter &meter,
                                          const std::array<double, 3> &widths) noexcept;

} // namespace Loadwick::BandMeterGeometry
