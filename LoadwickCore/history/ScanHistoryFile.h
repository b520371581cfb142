#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "history/RecordedScan.h"

namespace Loadwick {

/// The whole content of the history file.
struct ScanHistoryFile
{
    std::int64_t version;            ///< schema version
    std::vector<RecordedScan> scans; ///< oldest first

    /// Reads the file's JSON. One bad record (a missing key, a wrong type, a malformed date or
    /// identifier) makes the whole file unreadable; unknown keys are ignored.
    [[nodiscard]] static std::optional<ScanHistoryFile> decoded(std::string_view json);

    /// UTF-8 JSON, two-space indent, keys in alphabetical order, `"key" : value`.
    [[nodiscard]] std::string encoded() const;

    friend bool operator==(const ScanHistoryFile &, const ScanHistoryFile &) = default;
};

} // namespace Loadwick
