#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "history/RecordedScan.h"

namespace Loadwick {

/// A recorded history, named after what is special about it.
struct SampleHistory
{
    std::string name;                ///< lower case, words joined by hyphens
    std::vector<RecordedScan> scans; ///< oldest first
};

/// Made-up histories. Identifiers are random.
namespace SampleHistories {

inline constexpr std::array<std::string_view, 9> categoryNames{"System tools",
                                                               "MCP tools",
                                                               "Repository instructions",
                                                               "System prompt",
                                                               "Custom agents",
                                                               "Personal instructions",
                                                               "Inherited project instructions",
                                                               "Unattributed",
                                                               "Messages"};

/// No scan, one, two equal ones, two repositories, 30 scans of one repository, 31 over five, and
/// 200 over 30 repositories, and two around a clean-up, in that order. Each ends in March 2026.
[[nodiscard]] std::vector<SampleHistory> all();

/// `scanCount` scans that rotate through `repositoryCount` repositories, each with `categoryCount`
/// categories. The last one is from March 2026.
[[nodiscard]] std::vector<RecordedScan> ofSize(std::int64_t scanCount, std::int64_t repositoryCount,
                                               std::int64_t categoryCount);

/// What the demonstration has recorded: scans of five repositories in `projects` over the ten weeks
/// before `now`, oldest first.
[[nodiscard]] std::vector<RecordedScan> ofTenWeeks(const std::filesystem::path &projects,
                                                   std::chrono::sys_seconds now);

} // namespace SampleHistories
} // namespace Loadwick
