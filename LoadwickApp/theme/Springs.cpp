#include "theme/Springs.h"

#include <cmath>

#include "theme/Spring.h"

namespace Loadwick {
namespace {

constexpr Spring meterSpring{.response = 0.6, .dampingFraction = 0.85};
constexpr Spring donutSpring{.response = 0.55, .dampingFraction = 0.82};
constexpr Spring stepDotSpring{.response = 0.4, .dampingFraction = 0.6};

/// The curve takes a bare function, so the spring has to be part of its type.
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

QEasingCurve Springs::meter() const
{
    return curve<meterSpring>();
}

int Springs::meterDuration() const
{
    return milliseconds(meterSpring);
}

QEasingCurve Springs::donut() const
{
    return curve<donutSpring>();
}

int Springs::donutDuration() const
{
    return milliseconds(donutSpring);
}

QEasingCurve Springs::stepDot() const
{
    return curve<stepDotSpring>();
}

int Springs::stepDotDuration() const
{
    return milliseconds(stepDotSpring);
}

} // namespace Loadwick
