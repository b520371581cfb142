#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "probe/ProbeResult.h"
#include "report/InstructionFileSet.h"
#include "report/ScanReport.h"

namespace Loadwick {

/// What one scan of a repository found, with the words of a real one: names, paths and sizes as
/// people have them. All of it is made up.
struct SampleScan
{
    std::string name; ///< what it is a sample of: lower case, words joined by hyphens
    std::string repositoryPath;
    ProbeResult probe;
    InstructionFileSet files;

    /// What the program makes of it.
    [[nodiscard]] ScanReport report() const;
};

/// The samples that tests, pictures and measurements share.
namespace SampleScans {

[[nodiscard]] SampleScan lean();
[[nodiscard]] SampleScan heavy();
/// 142,318 tokens: on the widest scale, with files that could not be read in each tier.
[[nodiscard]] SampleScan excessive();
/// No tokens, rows without tokens, no files.
[[nodiscard]] SampleScan zero();
[[nodiscard]] SampleScan overAttributed();
/// A session that reported no categories, in a repository with files.
[[nodiscard]] SampleScan notSelfReported();

/// The six above, in that order.
[[nodiscard]] std::vector<SampleScan> all();

/// Of any size: `categoryCount` categories that the session reported, `fileCount` files spread over
/// the three tiers. The breakdown has one more row for each tier with files, and the remainder.
[[nodiscard]] SampleScan ofSize(std::int64_t categoryCount, std::int64_t fileCount);

} // namespace SampleScans
} // namespace Loadwick
