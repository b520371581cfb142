#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "model/OnboardingFlow.h"

namespace Loadwick {

/// One step of the walk-through as the sheet shows it. Nothing of it ever changes.
class OnboardingStepTexts final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the walk-through's presenter.")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString body READ body CONSTANT)
    Q_PROPERTY(QString footnote READ footnote CONSTANT)
    Q_PROPERTY(QString primaryTitle READ primaryTitle CONSTANT)
    Q_PROPERTY(Illustration illustration READ illustration CONSTANT)
    Q_PROPERTY(bool showsBack READ showsBack CONSTANT)
    Q_PROPERTY(bool showsSkip READ showsSkip CONSTANT)

public:
    enum class Illustration
    {
        MeasureIcon,
        ToolbarPointer,
        ScanSpinner,
        BandLegend
    };
    Q_ENUM(Illustration)

    explicit OnboardingStepTexts(const OnboardingStep &step, QObject *parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString body() const;
    /// Empty where the step has none.
    [[nodiscard]] QString footnote() const;
    [[nodiscard]] QString primaryTitle() const;
    [[nodiscard]] Illustration illustration() const;
    [[nodiscard]] bool showsBack() const { return m_step.showsBack(); }
    [[nodiscard]] bool showsSkip() const { return m_step.showsSkip(); }

private:
    OnboardingStep m_step;
};

} // namespace Loadwick
