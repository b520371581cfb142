#include "pictures/Stage.h"

#include "support/FakeInstructionScanner.h"
#include "support/FakeProbe.h"

namespace Loadwick {

namespace {

LoadwickWindow::Collaborators collaborators()
{
    return {.probeRunner = std::make_shared<FakeProbe>(),
            .instructionScanner = std::make_shared<FakeInstructionScanner>()};
}

} // namespace

Stage::Stage() : m_loadwick(collaborators())
{
    window().show();
}

void Stage::show(const Scene &scene)
{
    ScanModel &model = m_loadwick.model();
    model.state().set(ScanState::idle());
    model.history().set(scene.history);
    if (scene.report) {
        model.select(RepoSelection::fromUrl(scene.report->repositoryPath));
        model.state().set(ScanState::result(*scene.report));
    } else if (!scene.history.empty()) {
        model.select(RepoSelection::fromUrl(scene.history.back().repositoryPath));
    }
    m_loadwick.content().setPageIndex(static_cast<int>(AppPage::Value(scene.page)));
}

} // namespace Loadwick
