#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "report/InstructionFileSet.h"

namespace Loadwick {

/// Finds the instruction files of a repository. Blocking: call it off the interface thread.
class InstructionFileScanning
{
public:
    virtual ~InstructionFileScanning() = default;

    [[nodiscard]] virtual InstructionFileSet scan(const std::filesystem::path &repository) = 0;
};

/// Reads the instruction files that a session in a repository loads, and those that they import. It
/// never writes and never fails: unreadable files are listed.
class InstructionFileScanner final : public InstructionFileScanning
{
public:
    /// Imports deeper than this are not followed; the files themselves are at depth 0.
    static constexpr int defaultMaxImportDepth = 5;

    /// A larger file counts by its size, but is not searched for imports.
    static constexpr std::int64_t importSearchLimit = 4'000'000; ///< bytes

    struct Settings
    {
        std::string home;
        int maxImportDepth = defaultMaxImportDepth;
        double limitSeconds = 30.0; ///< then `scan` returns what it has found
    };

    explicit InstructionFileScanner(Settings settings);

    /// `scanSynchronously` within the limit. Throws when threads or memory run out.
    [[nodiscard]] InstructionFileSet scan(const std::filesystem::path &repository) override;

    /// Blocks for as long as the disk does.
    [[nodiscard]] InstructionFileSet
    scanSynchronously(const std::filesystem::path &repository) const;

private:
    Settings m_settings;
};

} // namespace Loadwick
