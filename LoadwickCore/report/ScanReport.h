#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "probe/TotalSource.h"
#include "report/InstructionFileSet.h"
#include "report/OpinionBand.h"
#include "report/OverAttributionSource.h"
#include "report/SlabAttribution.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// Everything one scan measured and derived. Made once by `ScanReportBuilder`, never changed.
struct ScanReport
{
    std::string repositoryName;
    std::string repositoryPath;
    std::int64_t total; ///< tokens; the one authoritative figure
    TotalSource totalSource;
    std::string sessionID;
    std::string resolvedCLIPath;
    double duration; ///< seconds
    std::vector<SlabAttribution> rows;
    InstructionFileSet fileSet;
    OpinionBand band;
    std::int64_t remainder;
    bool overAttributed;
    bool categoriesSelfReported;

    static constexpr std::string_view repositoryCategoryName = "Repository instructions";
    static constexpr std::string_view inheritedCategoryName = "Inherited project instructions";
    static constexpr std::string_view personalCategoryName = "Personal instructions";
    static const std::string_view measurementNote;
    static const std::string_view splitsEstimateNote;

    /// Repository, inherited, then personal files.
    [[nodiscard]] std::vector<InstructionFileEstimate> files() const;
    [[nodiscard]] const std::vector<std::string> &unreadablePaths() const noexcept;

    /// A row's part of the total, in [0, 1]; 0 for every row when the total is below 1.
    [[nodiscard]] double categoryShare(const SlabAttribution &row) const noexcept;

    [[nodiscard]] std::string totalSourceLine() const;

    /// The six lines that "Copy Summary" puts on the clipboard, joined by single line feeds there.
    [[nodiscard]] std::vector<std::string> summaryLines(const TextLocale &locale) const;

    /// Nothing when every file could be read.
    [[nodiscard]] std::optional<std::string> unreadableFilesNote() const;

    /// Which kind of row exceeds the total by itself; means something only when `overAttributed`.
    /// Overflow of a 64-bit sum ends the program.
    [[nodiscard]] OverAttributionSource overAttributionSource() const;

    /// Nothing unless `overAttributed`.
    [[nodiscard]] std::optional<std::string> overAttributionNote(const TextLocale &locale) const;

    /// Nothing when the session reported categories, or when there are no files.
    [[nodiscard]] std::optional<std::string> unreportedCategoryFilesNote() const;

    friend bool operator==(const ScanReport &, const ScanReport &) = default;
};

} // namespace Loadwick
