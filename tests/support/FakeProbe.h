#pragma once

#include <filesystem>
#include <functional>
#include <vector>

#include "probe/ProbeRunning.h"

namespace Loadwick {

/// Starts no session: gives what a test hands in, and remembers what it was asked.
class FakeProbe : public ProbeRunning
{
public:
    /// What a run gives or throws; at first the sample result.
    std::function<ProbeResult()> answer;

    FakeProbe();

    [[nodiscard]] ProbeResult run(const std::filesystem::path &repository) override;

    /// The folders that were probed, in order.
    [[nodiscard]] const std::vector<std::filesystem::path> &runs() const noexcept { return m_runs; }

private:
    std::vector<std::filesystem::path> m_runs;
};

} // namespace Loadwick
