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

/// Predicts a scan model after every event from the table of its states alone: no tasks, no files,
/// no JSON. A walk applies the same events here and to a model and compares.
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
    /// The part of a recorded scan that the table predicts.
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

    /// The values published since the last event other than an outcome, in order, a letter each: s
    /// for the selection, t for the state, h for the history.
    [[nodiscard]] const std::string &changes() const noexcept { return m_changes; }

    void start(); ///< of the program
    void select(const RepoSelection &selection);
    void scan();
    void fail(const ProbeError &error);          ///< an outcome
    void succeed(std::chrono::sys_seconds date); ///< the other
    void clear();

    /// Whether the disk can be read and written; its content survives an outage.
    void setDiskWorks(bool works) noexcept { m_diskWorks = works; }
    /// Something else overwrote the file.
    void corrupt();
    /// An event that the model cannot see.
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
