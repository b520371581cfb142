#pragma once

#include <chrono>
#include <filesystem>
#include <vector>

#include "history/RecordedScan.h"

namespace Loadwick {

/// Made-up scans of several repositories over the ten weeks before a given moment.
namespace SampleHistory {

/// Oldest first. The repositories lie in `projects`.
[[nodiscard]] std::vector<RecordedScan> scans(const std::filesystem::path &projects,
                                              std::chrono::sys_seconds now);

/// Writes them to the history file in `directory`.
void writeInto(const std::filesystem::path &directory, const std::vector<RecordedScan> &scans);

} // namespace SampleHistory
} // namespace Loadwick
