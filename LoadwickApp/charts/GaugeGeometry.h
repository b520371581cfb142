#pragma once

/// A gauge from 0 to 100 on three quarters of a circle, open at the bottom. Angles are degrees,
/// counted anticlockwise from three o'clock; a negative span goes clockwise.
namespace Loadwick::GaugeGeometry {

inline constexpr double startAngle = 225;
inline constexpr double fullSpan = -270;

/// How far the gauge is filled. A value beyond its ends counts as the end.
[[nodiscard]] double span(double value) noexcept;

} // namespace Loadwick::GaugeGeometry
