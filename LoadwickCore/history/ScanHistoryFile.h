#pragma once

#include <cstddef>
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

    /// Reads the file's JSON, behind a byte order mark if there is one. One bad record (a missing
    /// key, a wrong type, a malformed date or identifier) makes the whole file unreadable; unknown
    /// keys are ignored.
    [[nodiscard]] static std::optional<ScanHistoryFile> decoded(std::string_view json);

    /// UTF-8 JSON, two-space indent, keys in alphabetical order, `"key" : value`.
    [[nodiscard]] std::string encoded() const;

    /// The same in at most `byteLimit` bytes. Leaves out of `scans` what does not fit: the
    /// categories of a scan that is too long by itself, then the oldest scans.
    [[nodiscard]] std::string encodedWithin(std::size_t byteLimit);

    friend bool operator==(const ScanHistoryFile &, const ScanHistoryFile &) = default;
};

} // namespace Loadwick
