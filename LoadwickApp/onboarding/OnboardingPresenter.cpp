#include "onboarding/OnboardingPresenter.h"

#include <exception>
#include <utility>

#include <QPointer>

#include "base/QtText.h"
#include "report/OpinionBand.h"

namespace Loadwick {
namespace {

QList<QStringList> legendRows()
{
    QList<QStringList> rows;
    for (const OnboardingLegendEntry &entry : OnboardingFlow::legend)
        rows.append({qtText(entry.title()), qtText(entry.detail)});
    return rows;
}

} // namespace

OnboardingPresenter::OnboardingPresenter(std::shared_ptr<OnboardingCompletionStore> store)
    : m_store(std::move(store)),
      m_flow(OnboardingCompletion(m_store)),
      m_legend({"title", "detail"})
{
    for (const OnboardingStep &step : OnboardingFlow::steps)
        m_steps.append(new OnboardingStepTexts(step, this));
    m_legend.setRows(legendRows());
    m_delay.setSingleShot(true);
    m_delay.setTimerType(Qt::PreciseTimer);
    m_delay.setInterval(delay);
    connect(&m_delay, &QTimer::timeout, this, &OnboardingPresenter::present);
}

void OnboardingPresenter::presentOnboardingIfFirstLaunch(
    const std::shared_ptr<TaskDispatcher> &dispatcher)
{
    const QPointer<OnboardingPresenter> presenter(this);
    const int request = ++m_request;
    try {
        dispatcher->runInBackground([dispatcher, presenter, request, store = m_store] {
            const bool isFirst = OnboardingCompletion(store).shouldPresent();
            dispatcher->postToInterface([presenter, request, isFirst] {
                if (presenter && isFirst && presenter->m_request == request)
                    presenter->m_delay.start();
            });
        });
    } catch (const std::exception &) {
        return; // No memory or no thread: the next launch may be luckier.
    }
}

void OnboardingPresenter::callOff()
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
