#pragma once

namespace Loadwick {

/// A damped spring that is let go at 0, at rest, and comes to rest at 1.
///
/// With z the damping fraction and w = 2 pi / response, its place x obeys
/// x'' + 2 z w x' + w^2 (x - 1) = 0 with x(0) = x'(0) = 0: the damped oscillation of Landau and
/// Lifshitz, Mechanics, section 25, with the rest position moved to 1.
struct Spring
{
    double response;        ///< seconds; the period that the spring would have without damping
    double dampingFraction; ///< of the critical damping; above 0 and below 1

    /// Where it is after so many seconds. It may swing beyond 1 on its way.
    [[nodiscard]] double valueAt(double seconds) const noexcept;

    /// Seconds after which it keeps within a thousandth of 1.
    [[nodiscard]] double settlingSeconds() const noexcept;
};

} // namespace Loadwick
