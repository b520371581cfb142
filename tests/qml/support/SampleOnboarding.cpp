#include "SampleOnboarding.h"

#include "support/SteppingDispatcher.h"

namespace Loadwick {

SampleOnboarding::SampleOnboarding(QObject *parent) : QObject(parent)
{
    const auto dispatcher = std::make_shared<SteppingDispatcher>();
    m_presenter.presentOnboardingIfFirstLaunch(dispatcher);
    dispatcher->runAll();
}

} // namespace Loadwick
