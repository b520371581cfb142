#include "onboarding/OnboardingPresenter.h"

#include <utility>

#include <QGuiApplication>

#include "base/QtTaskDispatcher.h"
#include "base/QtText.h"
#include "report/OpinionBand.h"

namespace Loadwick {
namespace {

std::vector<ListOf<OnboardingLegendEntry>::Role> legendRoles()
{
    return {
        {"title", [](const OnboardingLegendEntry &entry) { return qtText(entry.title()); }},
        {"detail", [](const OnboardingLegendEntry &entry) { return qtText(entry.detail); }},
    };
}

} // namespace

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

QString OnboardingStepTexts::platformNote() const
{
    return qtText(m_step.platformNote().value_or(""));
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
    return static_cast<Illustration>(OnboardingIllustration::Value(m_step.illustration));
}

OnboardingPresenter::OnboardingPresenter(std::shared_ptr<OnboardingCompletionStore> store)
    : m_store(std::move(store)), m_flow(OnboardingCompletion(m_store)), m_legend(legendRoles())
{
    for (const OnboardingStep &step : OnboardingFlow::steps)
        m_steps.append(new OnboardingStepTexts(step, this));
    m_legend.setRows({OnboardingFlow::legend.begin(), OnboardingFlow::legend.end()});
    m_delay.setSingleShot(true);
    m_delay.setTimerType(Qt::PreciseTimer);
    m_delay.setInterval(delay);
    connect(&m_delay, &QTimer::timeout, this, &OnboardingPresenter::present);
}

void OnboardingPresenter::presentOnboardingIfFirstLaunch(
    const std::shared_ptr<TaskDispatcher> &dispatcher)
{
    const auto isFirstLaunch = [store = m_store] {
        return OnboardingCompletion(store).shouldPresent();
    };
    const auto presentSoon = [this, request = ++m_request](bool isFirst) {
        if (isFirst && m_request == request)
            m_delay.start();
    };
    // Without a thread the next launch retries.
    inBackground(this, dispatcher, isFirstLaunch, presentSoon);
}

void OnboardingPresenter::cancel()
{
    ++m_request;
    m_delay.stop();
}

void OnboardingPresenter::dismiss()
{
    setPresented(false);
}

OnboardingStepTexts *OnboardingPresenter::step(int index) const
{
    return m_steps.at(index);
}

OnboardingStepTexts *OnboardingPresenter::currentStep() const
{
    return step(currentIndex());
}

QString OnboardingPresenter::position() const
{
    return tr("Step %1 of %2").arg(currentIndex() + 1).arg(stepCount());
}

QString OnboardingPresenter::stepWords() const
{
    const OnboardingStepTexts &step = *currentStep();
    QStringList words{position(), step.title(), step.body(), step.platformNote(), step.footnote()};
    words.removeAll(QString());
    return words.join(QLatin1Char('\n'));
}

QString OnboardingPresenter::legendCaption() const
{
    return qtText(OpinionBand::opinionNote);
}

void OnboardingPresenter::advance()
{
    move(&OnboardingFlow::advance);
}

void OnboardingPresenter::goBack()
{
    move(&OnboardingFlow::goBack);
}

void OnboardingPresenter::skip()
{
    move(&OnboardingFlow::skip);
}

void OnboardingPresenter::present()
{
    if (m_isPresented)
        return;
    if (QGuiApplication::modalWindow() != nullptr) // a dialog: two would compete for the keyboard
        return m_delay.start();
    m_flow = OnboardingFlow(OnboardingCompletion(m_store));
    Q_EMIT moved();
    Q_EMIT isFinishedChanged();
    setPresented(true);
}

void OnboardingPresenter::setPresented(bool presented)
{
    if (m_isPresented == presented)
        return;
    m_isPresented = presented;
    Q_EMIT isPresentedChanged();
}

void OnboardingPresenter::move(void (OnboardingFlow::*way)())
{
    if (isFinished())
        return;
    (m_flow.*way)();
    Q_EMIT moved();
    if (isFinished())
        Q_EMIT isFinishedChanged();
}

} // namespace Loadwick

#include "moc_OnboardingPresenter.cpp"
