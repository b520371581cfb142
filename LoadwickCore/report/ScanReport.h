#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "probe/ProbeRunning.h"
#include "report/InstructionFileSet.h"
#include "report/OpinionBand.h"
#include "report/SlabAttributor.h"
#include "text/NamedValue.h"

namespace Loadwick {

struct RepoSelection;
struct TextLocale;

/// Which kind of row exceeds the total.
class OverAttributionSource
{
public:
    enum Value
    {
        selfReported,
        localEstimate,
        combined
    };
    static constexpr std::array all{selfReported, localEstimate, combined};

    constexpr OverAttributionSource(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    /// The case's name.
    [[nodiscard]] std::string_view rawValue() const noexcept;
    [[nodiscard]] static std::optional<OverAttributionSource>
    fromRawValue(std::string_view text) noexcept
    {
        return valueNamed<OverAttributionSource>(text);
    }

private:
    Value m_value;
};

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
    AnswerLines answerLines = {};

    static constexpr std::string_view repositoryCategoryName = "Repository instructions";
    static constexpr std::string_view inheritedCategoryName = "Inherited project instructions";
    static constexpr std::string_view personalCategoryName = "Personal instructions";
    static const std::string_view measurementNote;
    static const std::string_view splitsEstimateNote;

    /// Repository, inherited, then personal files.
    [[nodiscard]] std::vector<InstructionFileEstimate> files() const;
    [[nodiscard]] const std::vector<std::string> &unreadablePaths() const noexcept;

    /// `tokens` as a fraction of `total`, in [0, 1]; 0 when the total is below 1.
    [[nodiscard]] static double share(std::int64_t tokens, std::int64_t total) noexcept;
    [[nodiscard]] double categoryShare(const SlabAttribution &row) const noexcept;

    [[nodiscard]] std::string totalSourceLine() const;

    /// The six lines that "Copy Summary" puts on the clipboard.
    [[nodiscard]] std::vector<std::string> summaryLines(const TextLocale &locale) const;

    /// Says why a total can be 0; nothing for any other.
    [[nodiscard]] std::optional<std::string> zeroTotalNote() const;

    /// Nothing when every file could be read.
    [[nodiscard]] std::optional<std::string> unreadableFilesNote() const;
    /// What holds on this system where that note speaks of another one.
    [[nodiscard]] std::optional<std::string> unreadableFilesPlatformNote() const;

    /// Which kind of row alone exceeds the total; meaningful only when `overAttributed`. Overflow
    /// of a 64-bit sum ends the program.
    [[nodiscard]] OverAttributionSource overAttributionSource() const;

    /// Nothing unless `overAttributed`.
    [[nodiscard]] std::optional<std::string> overAttributionNote(const TextLocale &locale) const;

    /// Nothing when the session reported categories, or when there are no files.
    [[nodiscard]] std::optional<std::string> unreportedCategoryFilesNote() const;

    friend bool operator==(const ScanReport &, const ScanReport &) = default;
};

/// Combines a probe's result, the chosen repository and its files into a report.
namespace ScanReportBuilder {

[[nodiscard]] ScanReport build(const RepoSelection &selection, const ProbeResult &probe,
                               const InstructionFileSet &files);

} // namespace ScanReportBuilder

} // namespace Loadwick
