#include "theme/Spring.h"

#include <cmath>
#include <numbers>

namespace Loadwick {
namespace {

constexpr double restTolerance = 0.001;

double undampedFrequency(const Spring &spring)
{
    return 2 * std::numbers::pi / spring.response;
}

/// The frequency of the swing that is left, as a part of the undamped one.
double dampedPart(const Spring &spring)
{
    return std::sqrt(1 - spring.dampingFraction * spring.dampingFraction);
}

} // namespace

double Spring::valueAt(double seconds) const noexcept
{
    const double decay = dampingFraction * undampedFrequency(*this);
    const double frequency = dampedPart(*this) * undampedFrequency(*this);
    const double angle = frequency * seconds;
    return 1 - std::exp(-decay * seconds) * (std::cos(angle) + decay / frequency * std::sin(angle));
}

// The swing lies within its envelope exp(-decay t) / dampedPart.
double Spring::settlingSeconds() const noexcept
{
    const double decay = dampingFraction * undampedFrequency(*this);
    return std::log(1 / (restTolerance * dampedPart(*this))) / decay;
}

} // namespace Loadwick
