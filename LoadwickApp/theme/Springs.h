#pragma once

#include <QEasingCurve>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Loadwick {

/// The springs of the window, each as an easing curve and the milliseconds that it takes; see
/// `Spring` for their formula. An animation needs both: `NumberAnimation { duration:
/// Springs.meterDuration; easing: Springs.meter }`. Where motion is unwanted, do not animate.
class Springs : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Of a marker or a needle that moves to its place: response 0.6 s, damping fraction 0.85.
    Q_PROPERTY(QEasingCurve meter READ meter CONSTANT)
    Q_PROPERTY(int meterDuration READ meterDuration CONSTANT)
    /// Of a donut that opens: response 0.55 s, damping fraction 0.82.
    Q_PROPERTY(QEasingCurve donut READ donut CONSTANT)
    Q_PROPERTY(int donutDuration READ donutDuration CONSTANT)
    /// Of the dot of a step that is reached: response 0.4 s, damping fraction 0.6.
    Q_PROPERTY(QEasingCurve stepDot READ stepDot CONSTANT)
    Q_PROPERTY(int stepDotDuration READ stepDotDuration CONSTANT)

public:
    using QObject::QObject;

    [[nodiscard]] QEasingCurve meter() const;
    [[nodiscard]] int meterDuration() const;
    [[nodiscard]] QEasingCurve donut() const;
    [[nodiscard]] int donutDuration() const;
    [[nodiscard]] QEasingCurve stepDot() const;
    [[nodiscard]] int stepDotDuration() const;
};

} // namespace Loadwick
