#include "theme/Springs.h"

#include <cmath>
#include <numbers>

namespace Loadwick {
namespace {

constexpr double restTolerance = 0.001;

constexpr Spring meterSpring{.response = 0.6, .dampingFraction = 0.85};
constexpr Spring donutSpring{.response = 0.55, .dampingFraction = 0.82};
constexpr Spring stepDotSpring{.response = 0.4, .dampingFraction = 0.6};

double undampedFrequency(const Spring &spring)
{
    return 2 * std::numbers::pi / spring.response;
}

/// The frequency of the damped oscillation, as a fraction of the undamped one.
double dampedFraction(const Spring &spring)
{
    return std::sqrt(1 - spring.dampingFraction * spring.dampingFraction);
}

/// The curve takes a plain function, so the spring must be part of its type.
template<Spring spring>
qreal valueAtProgress(qreal progress)
{
    return progress >= 1 ? 1 : spring.valueAt(progress * spring.settlingSeconds());
}

template<Spring spring>
QEasingCurve curve()
{
    QEasingCurve curve;
    curve.setCustomType(&valueAtProgress<spring>);
    return curve;
}

int milliseconds(const Spring &spring)
{
    return static_cast<int>(std::lround(spring.settlingSeconds() * 1000));
}

} // namespace

double Spring::valueAt(double seconds) const noexcept
{
    const double decay = dampingFraction * undampedFrequency(*this);
    const double frequency = dampedFraction(*this) * undampedFrequency(*this);
    const double angle = frequency * seconds;
    return 1 - std::exp(-decay * seconds) * (std::cos(angle) + decay / frequency * std::sin(angle));
}

// The oscillation lies within its envelope exp(-decay t) / dampedFraction.
double Spring::settlingSeconds() const noexcept
{
    const double decay = dampingFraction * undampedFrequency(*this);
    return std::log(1 / (restTolerance * dampedFraction(*this))) / decay;
}

Springs::Springs(QObject *parent)
    : QObject(parent),
      meter(curve<meterSpring>()),
      donut(curve<donutSpring>()),
      stepDot(curve<stepDotSpring>()),
      meterDuration(milliseconds(meterSpring)),
      donutDuration(milliseconds(donutSpring)),
      stepDotDuration(milliseconds(stepDotSpring))
{}

} // namespace Loadwick

#include "moc_Springs.cpp"
