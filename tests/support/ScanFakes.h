#pragma once

#include <filesystem>
#include <functional>
#include <vector>

#include "model/OnboardingFlow.h"
#include "probe/ProbeRunning.h"
#include "report/InstructionFileScanner.h"
#include "samples/SampleReport.h"

namespace Loadwick {

/// Starts no session: returns a preset result and records its calls.
class FakeProbe : public ProbeRunning
{
public:
    /// What a run returns or throws; at first the sample result.
    std::function<ProbeResult()> answer = sampleProbeResult;

    [[nodiscard]] ProbeResult run(const std::filesystem::path &repository) override
    {
        m_runs.push_back(repository);
        return answer();
    }

    /// The folders that were probed, in order.
    [[nodiscard]] const std::vector<std::filesystem::path> &runs() const noexcept { return m_runs; }

private:
    std::vector<std::filesystem::path> m_runs;
};

/// Reads no file: returns a preset result and records its calls.
class FakeInstructionScanner : public InstructionFileScanning
{
public:
    /// What a scan returns or throws; at first no files.
    std::function<InstructionFileSet()> answer = [] { return InstructionFileSet(); };

    [[nodiscard]] InstructionFileSet scan(const std::filesystem::path &repository) override
    {
        m_scans.push_back(repository);
        return answer();
    }

    /// The folders that were scanned, in order.
    [[nodiscard]] const std::vector<std::filesystem::path> &scans() const noexcept
    {
        return m_scans;
    }

private:
    std::vector<std::filesystem::path> m_scans;
};

/// Remembers in memory and counts its writes.
class FakeCompletionStore final : public OnboardingCompletionStore
{
public:
    explicit FakeCompletionStore(bool atFirst = false) : completed(atFirst) {}

    [[nodiscard]] bool onboardingCompleted() const override { return completed; }
    void setOnboardingCompleted(bool nowCompleted) override
    {
        completed = nowCompleted;
        ++writes;
    }

    bool completed;
    int writes = 0;
};

} // namespace Loadwick
