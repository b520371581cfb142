#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <random>
#include <string>

#include "model/ScanModel.h"
#include "samples/TemporaryFolder.h"
#include "support/ScanModelHarness.h"
#include "support/ScanStateTable.h"

namespace Loadwick {

/// A random walk: a program that is started, used, disturbed and quit, and the table that predicts
/// its state after each step. Equal seeds produce equal walks.
class ScanModelWalk
{
public:
    enum class Recording
    {
        withStore,
        withoutStore
    };

    ScanModelWalk(std::uint32_t seed, Recording recording);

    ScanModelWalk(const ScanModelWalk &) = delete;
    ScanModelWalk &operator=(const ScanModelWalk &) = delete;

    /// One event, in the model and in the table.
    void step();

    /// The first difference between the two, in words; empty when there is none.
    [[nodiscard]] std::string difference();

    [[nodiscard]] int endedScans() const noexcept { return m_endedScans; }
    [[nodiscard]] int quits() const noexcept { return m_quits; }

private:
    enum class Mood
    {
        works,
        timesOut,
        fails,
        lacksMemory,
        throwsSomethingElse
    };

    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(m_random); }

    void start();
    void select();
    void scan();
    void clear();
    void quit();
    void continueScan();
    void receive();
    void succeed();
    void refuse();
    void changeCollaborators();
    void moveClock();
    void disruptDisk();
    void swapHistoryFolder();

    [[nodiscard]] ProbeResult probed() const;
    [[nodiscard]] ProbeError expectedOfProbe() const;
    [[nodiscard]] std::optional<ProbeError> expectedOfStage() const;

    std::mt19937 m_random;
    Recording m_recording;
    TemporaryFolder m_files;
    ScanModelHarness m_harness;
    ScanStateTable m_table;
    std::optional<ScanModel> m_model;
    std::string m_changes; ///< published values of the last step, in the table's letters
    std::chrono::sys_seconds m_now = ScanModelHarness::now;
    std::optional<RepoSelection> m_scanned;
    int m_stage = 0;
    std::optional<ProbeError> m_error; ///< that ended the last stage
    Mood m_probeMood = Mood::works;
    bool m_scannerFails = false;
    bool m_refusesThreads = false;
    bool m_diskWorks = true;
    int m_endedScans = 0;
    int m_quits = 0;
};

} // namespace Loadwick
