#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "faults/driver/Operation.h"
#include "history/RecordedScan.h"

namespace Faults {

/// A history of three scans in a home folder, and the outcomes that an operation on it may have.
class HistoryFixture
{
public:
    enum class Start
    {
        threeScans,
        threeScansAndRemains, ///< the temporary file of a writer that crashed, too
        nothing               ///< not even the folder
    };

    static constexpr std::string_view relativePath = ".local/share/Loadwick/scan-history.json";

    HistoryFixture(const std::filesystem::path &home, Start start);

    [[nodiscard]] std::filesystem::path folder() const { return m_path.parent_path(); }
    [[nodiscard]] const std::filesystem::path &path() const { return m_path; }
    [[nodiscard]] const std::vector<Loadwick::RecordedScan> &scans() const { return m_scans; }

    /// The file's bytes; nothing when there is none.
    [[nodiscard]] std::optional<std::string> bytes() const;
    [[nodiscard]] bool isUntouched() const { return bytes() == m_oldBytes; }

    /// What is wrong after an attempt to record one scan.
    [[nodiscard]] std::optional<std::string>
    problemAfterAppend(const std::optional<Fault> &fault) const;

    /// What is wrong after an attempt to delete the file.
    [[nodiscard]] std::optional<std::string>
    problemAfterClear(const std::optional<Fault> &fault) const;

    /// Anything beside the file and the remains in its folder.
    [[nodiscard]] std::optional<std::string> leftovers() const;

    /// What is wrong with a changed file of these bytes: it must hold the old scans and a new one.
    [[nodiscard]] std::optional<std::string> problemOf(const std::string &bytes,
                                                       const std::optional<Fault> &fault) const;

private:
    [[nodiscard]] std::filesystem::path remains() const;

    std::filesystem::path m_path;
    std::vector<Loadwick::RecordedScan> m_scans;
    std::optional<std::string> m_oldBytes;
};

/// A scan like the recorded ones, newer than they are.
[[nodiscard]] Loadwick::RecordedScan sampleScan(int number);

} // namespace Faults
