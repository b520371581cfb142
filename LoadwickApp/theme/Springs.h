#pragma once

#include <QEasingCurve>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Loadwick {

/// A damped spring, released at rest at 0, that settles at 1.
///
/// With z the damping fraction and w = 2 pi / response, its position x obeys
/// x'' + 2 z w x' + w^2 (x - 1) = 0 with x(0) = x'(0) = 0: the damped oscillation of Landau and
/// Lifshitz, Mechanics, section 25, with the rest position moved to 1.
struct Spring
{
    double response;        ///< seconds; the period without damping
    double dampingFraction; ///< of the critical damping; above 0 and below 1

    /// The position after that many seconds. It may overshoot 1.
    [[nodiscard]] double valueAt(double seconds) const noexcept;

    /// Seconds until it stays within a thousandth of 1.
    [[nodiscard]] double settlingSeconds() const noexcept;
};

/// The springs of the window, each as an easing curve and its duration in milliseconds. An
/// animation needs both: `NumberAnimation { duration: Springs.meterDuration; easing: Springs.meter
/// }`. Under reduced motion, do not animate.
class Springs : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// A marker or a needle that moves to its target: response 0.6 s, damping fraction 0.85.
    Q_PROPERTY(QEasingCurve meter MEMBER meter CONSTANT)
    Q_PROPERTY(int meterDuration MEMBER meterDuration CONSTANT)
    /// A donut that opens: response 0.55 s, damping fraction 0.82.
    Q_PROPERTY(QEasingCurve donut MEMBER donut CONSTANT)
    Q_PROPERTY(int donutDuration MEMBER donutDuration CONSTANT)
    /// The dot of a step that is reached: response 0.4 s, damping fraction 0.6.
    Q_PROPERTY(QEasingCurve stepDot MEMBER stepDot CONSTANT)
    Q_PROPERTY(int stepDotDuration MEMBER stepDotDuration CONSTANT)

public:
    explicit Springs(QObject *parent = nullptr);

    const QEasingCurve meter;
    const QEasingCurve donut;
    const QEasingCurve stepDot;
    const int meterDuration;
    const int donutDuration;
    const int stepDotDuration;
};

} // namespace Loadwick
