#pragma once

#include <cstdint>
#include <string>

#include "report/InstructionFileScanning.h"

namespace Loadwick {

/// Reads the instruction files that a session in a repository loads, and those that they import.
/// It never writes and never fails: what cannot be read is listed.
class InstructionFileScanner final : public InstructionFileScanning
{
public:
    /// Imports deeper than this are not followed; the files themselves stand at depth 0.
    static constexpr int defaultMaxImportDepth = 5;

    /// A file of more bytes counts by its size, but is not searched for imports.
    static constexpr std::int64_t importSearchLimit = 4'000'000;

    struct Settings
    {
        std::string home;
        int maxImportDepth = defaultMaxImportDepth;
        double limitSeconds = 30.0; ///< then `scan` gives what was found so far
    };

    explicit InstructionFileScanner(Settings settings);

    /// `scanSynchronously` within the limit. Throws when there is no thread or no memory to be had.
    [[nodiscard]] InstructionFileSet scan(const std::filesystem::path &repository) override;

    /// Blocks for as long as the disk does.
    [[nodiscard]] InstructionFileSet
    scanSynchronously(const std::filesystem::path &repository) const;

private:
    Settings m_settings;
};

} // namespace Loadwick
