#include "support/ScanModelHarness.h"

#include <utility>

#include "report/ScanReport.h"
#include "samples/SampleReport.h"

namespace Loadwick {

ScanModelHarness::ScanModelHarness()
{
    std::filesystem::create_directory(m_folder.path() / "webshop");
    std::filesystem::create_directory(m_folder.path() / "other");
}

ScanModelHarness::~ScanModelHarness()
{
    dispatcher->discardAll();
}

ScanModel::Collaborators ScanModelHarness::collaborators() const
{
    ScanModel::Collaborators all = collaboratorsWithoutStore();
    all.historyStore = std::make_unique<ScanHistoryStore>(historyFolder());
    return all;
}

ScanModel::Collaborators ScanModelHarness::collaboratorsWithoutStore() const
{
    return {.probeRunner = probe,
            .instructionScanner = scanner,
            .historyStore = nullptr,
            .dispatcher = dispatcher,
            .now = [] { return now; }};
}

RepoSelection ScanModelHarness::repository() const
{
    return RepoSelection::fromUrl(m_folder.path() / "webshop");
}

RepoSelection ScanModelHarness::otherRepository() const
{
    return RepoSelection::fromUrl(m_folder.path() / "other");
}

std::filesystem::path ScanModelHarness::historyFolder() const
{
    return m_folder.path() / "data";
}

std::vector<RecordedScan> ScanModelHarness::recorded() const
{
    return ScanHistoryStore(historyFolder()).load();
}

ScanReport ScanModelHarness::expectedReport() const
{
    return ScanReportBuilder::build(repository(), sampleProbeResult(), InstructionFileSet());
}

void ScanModelHarness::beginScan(ScanModel &model, Stage stage) const
{
    model.select(repository());
    model.scan();
    for (int step = 0; step < stage; ++step)
        dispatcher->step();
}

void ScanModelHarness::scanOnce(ScanModel &model) const
{
    beginScan(model, folderCheck);
    dispatcher->runAll();
}

LoadedScanModel::LoadedScanModel(const ScanModelHarness &harness)
    : LoadedScanModel(harness, harness.collaborators())
{}

LoadedScanModel::LoadedScanModel(const ScanModelHarness &harness, Collaborators collaborators)
    : ScanModel(std::move(collaborators))
{
    harness.dispatcher->runAll();
}

} // namespace Loadwick
