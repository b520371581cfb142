#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "probe/ProbeRunning.h"
#include "report/InstructionFileSet.h"
#include "report/ScanReport.h"

namespace Loadwick {

/// The findings of one scan of a repository: realistic names, paths and sizes, all made up.
struct SampleScan
{
    std::string name; ///< what is special about it: lower case, words joined by hyphens
    std::string repositoryPath;
    ProbeResult probe;
    InstructionFileSet files;

    /// The report that the program makes of it.
    [[nodiscard]] ScanReport report() const;
};

/// The repositories are in /home/someone/projects, with inherited files in that folder and personal
/// ones in /home/someone/.claude.
namespace SampleScans {

[[nodiscard]] SampleScan lean();
[[nodiscard]] SampleScan heavy();
/// 142,318 tokens: on the widest scale, with unreadable files in each tier.
[[nodiscard]] SampleScan excessive();
/// No tokens, rows without tokens, no files.
[[nodiscard]] SampleScan zero();
[[nodiscard]] SampleScan overAttributed();
/// A session that reported no categories, in a repository with files.
[[nodiscard]] SampleScan notSelfReported();

/// The six above, in that order.
[[nodiscard]] std::vector<SampleScan> all();

/// `categoryCount` categories that the session reported, `fileCount` files spread over the three
/// tiers. The breakdown has one more row for each tier with files, and the remainder.
[[nodiscard]] SampleScan ofSize(std::int64_t categoryCount, std::int64_t fileCount);

} // namespace SampleScans
} // namespace Loadwick
