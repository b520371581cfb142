#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "history/RecordedScan.h"
#include "history/ScanHistoryStore.h"
#include "model/Published.h"
#include "model/ScanState.h"
#include "model/TaskDispatcher.h"
#include "probe/ProbeRunning.h"
#include "report/InstructionFileScanner.h"
#include "report/RepoSelection.h"

namespace Loadwick {

/// Drives one scan at a time from a chosen folder to a recorded report, and owns the history.
/// Belongs to the interface thread; only the blocking work of its collaborators runs elsewhere, and
/// outcomes that arrive after the model is destroyed are dropped. The history is read, written and
/// cleared in the background, in the order in which that was asked for. Observers of its values may
/// call it but must not destroy it.
class ScanModel
{
public:
    /// Tells the user what a scan costs.
    static const std::string_view allowanceDisclosure;

    struct Collaborators
    {
        std::shared_ptr<ProbeRunning> probeRunner;
        std::shared_ptr<InstructionFileScanning> instructionScanner;
        std::shared_ptr<ScanHistoryStore> historyStore = {}; ///< null: nothing is recorded
        std::shared_ptr<TaskDispatcher> dispatcher = {};
        /// The clock that dates recorded scans.
        std::function<std::chrono::sys_seconds()> now = [] {
            return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
        };
        bool loadsHistoryAtOnce = true; ///< else with `loadHistory`
    };

    /// All collaborators but the store are required.
    explicit ScanModel(Collaborators collaborators);
    ~ScanModel();

    ScanModel(const ScanModel &) = delete;
    ScanModel &operator=(const ScanModel &) = delete;

    [[nodiscard]] Published<ScanState> &state() noexcept;
    [[nodiscard]] Published<std::optional<RepoSelection>> &selection() noexcept;
    /// Oldest first; empty until it has been read.
    [[nodiscard]] Published<std::vector<RecordedScan>> &history() noexcept;

    /// Begins to load the history, once. A scan that ends and a deletion begin it too.
    void loadHistory();

    /// Whether `history` says what is recorded: it has been read, and no change of it is underway.
    [[nodiscard]] bool isHistoryComplete() const noexcept;

    /// A folder is chosen and no scan runs.
    [[nodiscard]] bool canScan() const noexcept;

    /// There is a store, and it is known to hold scans.
    [[nodiscard]] bool canClearHistory() const noexcept;

    /// The file of the history; nothing without a store.
    [[nodiscard]] std::optional<std::filesystem::path> historyFile() const;

    /// Chooses a folder and goes back to idle; ignored while a scan runs.
    void select(const RepoSelection &selection);

    /// Starts one scan and returns; its outcome shows in `state` and `history`. Does nothing
    /// without a selection or while a scan runs.
    void scan();

    /// Forgets every recorded scan, even when the file cannot be deleted.
    void clearHistory();

    /// Returns when every scan that has ended is recorded and every deletion done. Blocking.
    void finishHistory() const;

private:
    class Internals;
    std::shared_ptr<Internals> m_internals; ///< shared so that late outcomes notice its end
};

} // namespace Loadwick
