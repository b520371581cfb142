#include "pictures/WalkThrough.h"

#include <string>

#include "demo/window/EventWait.h"
#include "demo/window/WindowAppearance.h"
#include "support/FakeCompletionStore.h"
#include "support/FakeInstructionScanner.h"
#include "support/FakeProbe.h"

namespace Loadwick {

namespace {

LoadwickWindow::Collaborators collaborators()
{
    return {.probeRunner = std::make_shared<FakeProbe>(),
            .instructionScanner = std::make_shared<FakeInstructionScanner>(),
            .completionStore = std::make_shared<FakeCompletionStore>()};
}

} // namespace

WalkThrough::WalkThrough() : m_loadwick(collaborators())
{
    appearanceOf(window()).setMotion(Appearance::Reduced);
    window().show();
    waitUntil("the first launch's sheet", [this] { return m_loadwick.onboarding().isPresented(); });
}

void WalkThrough::take(const PageCamera &camera)
{
    OnboardingPresenter &onboarding = m_loadwick.onboarding();
    for (int step = 0; step < onboarding.stepCount(); ++step) {
        camera.take(std::string(name) + "-" + std::to_string(step + 1));
        onboarding.advance();
        settle(); // it fades for as long as one settling
    }
}

} // namespace Loadwick
