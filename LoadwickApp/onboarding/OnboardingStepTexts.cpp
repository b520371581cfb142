#include "onboarding/OnboardingStepTexts.h"

#include "base/QtText.h"

namespace Loadwick {

OnboardingStepTexts::OnboardingStepTexts(const OnboardingStep &step, QObject *parent)
    : QObject(parent), m_step(step)
{}

QString OnboardingStepTexts::title() const
{
    return qtText(m_step.title);
}

QString OnboardingStepTexts::body() const
{
    return qtText(m_step.body);
}

QString OnboardingStepTexts::footnote() const
{
    return qtText(m_step.footnote.value_or(std::string_view()));
}

QString OnboardingStepTexts::primaryTitle() const
{
    return qtText(m_step.primaryTitle);
}

OnboardingStepTexts::Illustration OnboardingStepTexts::illustration() const
{
    switch (OnboardingIllustration::Value(m_step.illustration)) {
    case OnboardingIllustration::measureIcon:
        return Illustration::MeasureIcon;
    case OnboardingIllustration::toolbarPointer:
        return Illustration::ToolbarPointer;
    case OnboardingIllustration::scanSpinner:
        return Illustration::ScanSpinner;
    case OnboardingIllustration::bandLegend:
        return Illustration::BandLegend;
    }
    return Illustration::MeasureIcon;
}

} // namespace Loadwick
