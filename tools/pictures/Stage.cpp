#include "pictures/Stage.h"

#include "support/FakeInstructionScanner.h"
#include "support/FakeProbe.h"

namespace Loadwick {

namespace {

LoadwickWindow::Collaborators collaborators(const std::filesystem::path &historyFolder)
{
    return {.probeRunner = std::make_shared<FakeProbe>(),
            .instructionScanner = std::make_shared<FakeInstructionScanner>(),
            .historyStore = std::make_unique<ScanHistoryStore>(historyFolder),
            .home = "/home/someone"};
}

/// A week a little over one target and under the other.
WeeklyKPILine sampleWeek()
{
    return {.medianTokensPerSession = 28'104'250,
            .tokensPerPR = 35'912'004,
            .totalTokens = 1'508'304'168,
            .mergedPRs = 42,
            .windowStart = "2026-03-02",
            .windowEnd = "2026-03-08",
            .timestamp = "2026-03-09T06:00:00Z"};
}

/// A scan that has ended is recorded.
std::vector<RecordedScan> historyOf(const Scene &scene)
{
    if (!scene.report)
        return scene.history;
    return {RecordedScan::fromReport(*scene.report, {}, Uuid::random())};
}

} // namespace

Stage::Stage() : m_loadwick(collaborators(m_folder.path()))
{
    m_loadwick.overview().weekly()->show(sampleWeek());
    window().show();
}

void Stage::show(const Scene &scene)
{
    ScanModel &model = m_loadwick.model();
    model.state().set(ScanState::idle());
    model.history().set(historyOf(scene));
    if (scene.report) {
        model.select(RepoSelection::fromUrl(scene.report->repositoryPath));
        model.state().set(ScanState::result(*scene.report));
    } else if (!scene.history.empty()) {
        model.select(RepoSelection::fromUrl(scene.history.back().repositoryPath));
    }
    m_loadwick.content().setPageIndex(static_cast<int>(AppPage::Value(scene.page)));
}

} // namespace Loadwick
