#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "history/RecordedScan.h"

/// Questions to a list of recorded scans. A repository is told apart by its path alone.
namespace Loadwick::ScanHistory {

/// The scans of one repository, in the order of the list.
[[nodiscard]] std::vector<RecordedScan> scans(std::span<const RecordedScan> scans,
                                              std::string_view repositoryPath);

/// The repository of the last scan of a list that runs from the oldest to the newest.
[[nodiscard]] std::optional<std::string>
mostRecentRepositoryPath(std::span<const RecordedScan> scans);

/// The latest scan of each repository, by name and then by path; of equal dates the first met.
[[nodiscard]] std::vector<RecordedScan> latestPerRepository(std::span<const RecordedScan> scans);

} // namespace Loadwick::ScanHistory
