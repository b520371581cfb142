#pragma once

#include <chrono>
#include <memory>
#include <optional>

#include "model/ScanModel.h"
#include "samples/TemporaryFolder.h"
#include "support/ScanFakes.h"
#include "support/SteppingDispatcher.h"

namespace Loadwick {

/// A scan model over fakes, stepped by hand, with a real folder to choose and a real history file.
/// Its clock does not move.
class ScanModelHarness
{
public:
    /// With a history store in its own folder.
    ScanModelHarness();

    /// Drops the stages that have not run.
    ~ScanModelHarness();

    ScanModelHarness(const ScanModelHarness &) = delete;
    ScanModelHarness &operator=(const ScanModelHarness &) = delete;

    /// The stages of a scan at which a test can interfere, by the number of steps before them.
    enum Stage
    {
        folderCheck = 0,
        probing = 1,
        reporting = 2
    };

    /// The collaborators of a model; call it once for each model.
    [[nodiscard]] ScanModel::Collaborators collaborators() const;

    /// The same without a store.
    [[nodiscard]] ScanModel::Collaborators collaboratorsWithoutStore() const;

    /// A folder that can be listed, as a selection.
    [[nodiscard]] RepoSelection repository() const;

    /// A second one.
    [[nodiscard]] RepoSelection otherRepository() const;

    [[nodiscard]] std::filesystem::path historyFolder() const;
    [[nodiscard]] std::vector<RecordedScan> recorded() const;

    /// The report of a scan of the repository, unless a collaborator was set up otherwise.
    [[nodiscard]] ScanReport expectedReport() const;

    /// Chooses the repository, starts a scan and steps up to `stage`.
    void beginScan(ScanModel &model, Stage stage) const;

    /// One whole scan of the repository, however it ends.
    void scanOnce(ScanModel &model) const;

    static constexpr std::chrono::sys_seconds now{std::chrono::seconds(1'772'615'727)};

    const std::shared_ptr<FakeProbe> probe = std::make_shared<FakeProbe>();
    const std::shared_ptr<FakeInstructionScanner> scanner =
        std::make_shared<FakeInstructionScanner>();
    const std::shared_ptr<SteppingDispatcher> dispatcher = std::make_shared<SteppingDispatcher>();

private:
    TemporaryFolder m_folder;
};

/// A model of the harness that has read its history.
class LoadedScanModel : public ScanModel
{
public:
    explicit LoadedScanModel(const ScanModelHarness &harness);
    LoadedScanModel(const ScanModelHarness &harness, Collaborators collaborators);
};

} // namespace Loadwick
