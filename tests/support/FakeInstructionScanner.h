#pragma once

#include <filesystem>
#include <functional>
#include <vector>

#include "report/InstructionFileScanner.h"

namespace Loadwick {

/// Reads no file: gives what a test hands in, and remembers what it was asked.
class FakeInstructionScanner : public InstructionFileScanning
{
public:
    /// What a scan gives or throws; at first no files.
    std::function<InstructionFileSet()> answer = [] { return InstructionFileSet(); };

    [[nodiscard]] InstructionFileSet scan(const std::filesystem::path &repository) override;

    /// The folders that were scanned, in order.
    [[nodiscard]] const std::vector<std::filesystem::path> &scans() const noexcept
    {
        return m_scans;
    }

private:
    std::vector<std::filesystem::path> m_scans;
};

} // namespace Loadwick
