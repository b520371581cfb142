#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "history/RecordedScan.h"

namespace Loadwick {

/// A recorded history with a name of what is special about it.
struct SampleHistory
{
    std::string name;                ///< lower case, words joined by hyphens
    std::vector<RecordedScan> scans; ///< oldest first
};

/// Made-up histories that tests, pictures and measurements share. Their scans end in March 2026;
/// identifiers are random.
namespace SampleHistories {

/// No scan, one, two equal ones, two repositories, 30 scans of one repository, 31 over five, and
/// 200 over 30 repositories, in that order.
[[nodiscard]] std::vector<SampleHistory> all();

/// `scanCount` scans that take turns among `repositoryCount` repositories, each with
/// `categoryCount` categories.
[[nodiscard]] std::vector<RecordedScan> ofSize(std::int64_t scanCount, std::int64_t repositoryCount,
                                               std::int64_t categoryCount);

} // namespace SampleHistories
} // namespace Loadwick
