#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "history/RecordedScan.h"
#include "posix/ProcessContext.h"

namespace Loadwick {

struct ScanHistoryFile;

/// Owns the history file. Caches nothing: every call reads the file. Reports no error: an
/// unreadable history is an empty one, and a failed write leaves the old file. A transient shortage
/// (memory, descriptors) does not count as unreadable. A history file that is a link is read and
/// written through it. Used by one thread at a time. Programs are not synchronised with each
/// other: the last to write the file wins.
class ScanHistoryStore
{
public:
    static constexpr std::int64_t schemaVersion = 1;
    static constexpr std::size_t maximumScans = 200;
    /// A longer file is neither read nor written.
    static constexpr std::size_t maximumBytes = std::size_t{64} << 20;
    static constexpr std::string_view fileName = "scan-history.json";
    static constexpr std::string_view directoryName = "Loadwick";

    /// Creates nothing on disk.
    explicit ScanHistoryStore(std::filesystem::path directory);

    /// The platform's data folder for this program: $XDG_DATA_HOME/Loadwick, or
    /// ~/.local/share/Loadwick when that is unset or relative (~/Library/Application Support/
    /// Loadwick on macOS).
    [[nodiscard]] static std::filesystem::path defaultDirectory(const Environment &environment);

    [[nodiscard]] const std::filesystem::path &directory() const noexcept { return m_directory; }
    [[nodiscard]] const std::filesystem::path &fileURL() const noexcept { return m_fileURL; }

    /// The recorded scans, oldest first (by date, then repository name, then file order), without
    /// those that `ScanHistory::summable` leaves out.
    [[nodiscard]] std::vector<RecordedScan> load() const;

    /// Adds a scan, keeps the newest `maximumScans` and of those what `maximumBytes` can hold (see
    /// `ScanHistoryFile::encodedWithin`), writes the file and returns the new list, whether or not
    /// writing succeeded. While a transient shortage keeps the recorded scans from being read,
    /// nothing is written, and `known` takes their place in the list. A scan that was left out when
    /// the file was read is not written again. Scans that are in `known` share their categories
    /// with it. Throws `std::bad_alloc`, and leaves the old file, when there is no memory for the
    /// list itself.
    [[nodiscard]] std::vector<RecordedScan> append(const RecordedScan &scan,
                                                   const std::vector<RecordedScan> &known = {});

    /// Deletes the file. When that is a link, deletes its target and keeps the link, so that the
    /// next scan is recorded there again. Never fails, and never removes a folder.
    void clear();

private:
    /// Nothing while a transient shortage prevents reading.
    [[nodiscard]] std::optional<std::vector<RecordedScan>> recordedScans() const;
    void write(ScanHistoryFile &file) const;

    std::filesystem::path m_directory;
    std::filesystem::path m_fileURL;
};

} // namespace Loadwick
