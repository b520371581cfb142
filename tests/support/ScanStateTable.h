#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "history/RecordedScan.h"
#include "model/ScanState.h"
#include "probe/ProbeError.h"
#include "report/RepoSelection.h"

namespace Loadwick {

/// What a scan model must be after every event, by the table of its states alone: no tasks, no
/// files, no JSON. A walk makes the same events happen here and in a model and compares.
class ScanStateTable
{
public:
    enum class Phase
    {
        idle,
        scanning,
        result,
        failed
    };
    /// What the history keeps of a scan, as far as the table knows it.
    struct Entry
    {
        std::string repository; ///< its path
        std::chrono::sys_seconds date;
        friend bool operator==(const Entry &, const Entry &) = default;
    };
    using Entries = std::vector<Entry>;

    /// Whether there is a store.
    explicit ScanStateTable(bool isRecording) : m_isRecording(isRecording) {}

    [[nodiscard]] Phase phase() const noexcept { return m_phase; }
    [[nodiscard]] const std::optional<RepoSelection> &selection() const { return m_selection; }
    [[nodiscard]] const std::optional<ProbeError> &error() const { return m_error; }
    [[nodiscard]] const Entries &history() const noexcept { return m_history; }
    [[nodiscard]] bool canScan() const { return m_selection && m_phase != Phase::scanning; }
    [[nodiscard]] bool canClear() const { return m_isRecording && !m_history.empty(); }

    /// The published values that changed since the last event but an outcome, in order, a letter
    /// each: s for the selection, t for the state, h for the history.
    [[nodiscard]] const std::string &changes() const noexcept { return m_changes; }

    void start(); ///< of the program
    void select(const RepoSelection &selection);
    void scan();
    void fail(const ProbeError &error);          ///< an outcome
    void succeed(std::chrono::sys_seconds date); ///< the other
    void clear();

    /// The disk takes and gives nothing, or does again; what it held is still there then.
    void setDiskWorks(bool works) noexcept { m_diskWorks = works; }
    /// Something else overwrote the file.
    void spoil();
    /// Nothing happened that the model can see.
    void wait() { m_changes.clear(); }

private:
    [[nodiscard]] Entries loaded() const { return m_diskWorks ? m_disk : Entries(); }

    bool m_isRecording;
    bool m_diskWorks = true;
    Phase m_phase = Phase::idle;
    std::optional<RepoSelection> m_selection;
    std::optional<RepoSelection> m_scanned; // of the scan that runs
    std::optional<ProbeError> m_error;
    Entries m_history;
    Entries m_disk;
    std::string m_changes;
};

} // namespace Loadwick
