#include "report/ScanReport.h"

#include <algorithm>
#include <utility>

#include "report/RepoSelection.h"
#include "text/Fatal.h"
#include "text/NumberText.h"
#include "text/OnLinux.h"

namespace Loadwick {

namespace {

std::int64_t tokensFrom(Provenance provenance, const std::vector<SlabAttribution> &rows)
{
    std::int64_t tokens = 0;
    for (const SlabAttribution &row : rows)
        if (row.provenance == provenance)
            tokens = checkedSum(tokens, row.tokens);
    return tokens;
}

struct SourceWords
{
    std::string_view rawValue;
    std::string_view sentence;
};

SourceWords wordsOf(OverAttributionSource source) noexcept
{
    switch (source) {
    case OverAttributionSource::selfReported:
        return {"selfReported",
                "The session's self-reported categories alone add up to more than its measured "
                "total."};
    case OverAttributionSource::localEstimate:
        return {"localEstimate",
                "The local file estimates alone add up to more than the measured total."};
    case OverAttributionSource::combined:
        break;
    }
    return {"combined",
            "The attributed rows — the session's self-reported categories plus this app's local "
            "file estimates — add up to more than the measured total."};
}

std::string line(std::string_view label, std::string_view text)
{
    return std::string(label).append(text);
}

} // namespace

std::string_view OverAttributionSource::rawValue() const noexcept
{
    return wordsOf(*this).rawValue;
}

const std::string_view ScanReport::measurementNote =
    "Measured: one headless `claude -p` session (model sonnet) started in this folder; the number "
    "includes the probe prompt.";

const std::string_view ScanReport::splitsEstimateNote =
    "The category and file splits below are estimates derived locally; only the total above is "
    "authoritative.";

std::vector<InstructionFileEstimate> ScanReport::files() const
{
    return fileSet.allFiles();
}

const std::vector<std::string> &ScanReport::unreadablePaths() const noexcept
{
    return fileSet.unreadablePaths;
}

double ScanReport::share(std::int64_t tokens, std::int64_t total) noexcept
{
    if (total < 1)
        return 0.0;
    return std::clamp(static_cast<double>(tokens) / static_cast<double>(total), 0.0, 1.0);
}

double ScanReport::categoryShare(const SlabAttribution &row) const noexcept
{
    return share(row.tokens, total);
}

std::string ScanReport::totalSourceLine() const
{
    return line("Total: authoritative — reported by Claude (source: ", totalSource.label())
        .append(").");
}

std::vector<std::string> ScanReport::summaryLines(const TextLocale &locale) const
{
    return {line("Repository: ", repositoryName),
            line("Total: ", NumberText::grouped(total, locale))
                .append(" tokens — authoritative, reported by Claude (")
                .append(totalSource.label())
                .append(")."),
            line("Band: ", band.title()).append(" (this app's opinion)."),
            "Category and file splits are local estimates; only the total is authoritative.",
            line("Session: ", sessionID)
                .append(" · ")
                .append(NumberText::oneDecimal(duration))
                .append(" seconds."),
            line("Claude executable: ", resolvedCLIPath)};
}

std::optional<std::string> ScanReport::zeroTotalNote() const
{
    if (total != 0)
        return std::nullopt;
    return "This session received no tokens; a hook may have blocked its prompt.";
}

std::optional<std::string> ScanReport::unreadableFilesNote() const
{
    const std::size_t count = unreadablePaths().size();
    if (count == 0)
        return std::nullopt;
    const std::string subject =
        count == 1 ? "1 instruction file" : std::to_string(count) + " instruction files";
    return subject +
           " could not be read, so the category and file estimates are lower "
           "than what is really loaded. The measured total is unaffected — it is reported "
           "by Claude. macOS may be blocking access: allow Loadwick under System "
           "Settings → Privacy & Security → Files & Folders, then scan again.";
}

std::optional<std::string> ScanReport::unreadableFilesPlatformNote() const
{
    const std::size_t count = unreadablePaths().size();
    if (count == 0)
        return std::nullopt;
    const std::string others = count == 1   ? ""
                               : count == 2 ? " and 1 other file"
                                            : " and " + std::to_string(count - 1) + " other files";
    return onLinux("On Linux there is no such setting: your user needs permission to read " +
                   unreadablePaths().front() + others +
                   ", and to enter every folder above. Then scan again.");
}

OverAttributionSource ScanReport::overAttributionSource() const
{
    const bool selfReportedExceeds = tokensFrom(Provenance::selfReported, rows) > total;
    const bool localExceeds = tokensFrom(Provenance::localEstimate, rows) > total;
    if (selfReportedExceeds == localExceeds)
        return OverAttributionSource::combined;
    return selfReportedExceeds ? OverAttributionSource::selfReported
                               : OverAttributionSource::localEstimate;
}

std::optional<std::string> ScanReport::overAttributionNote(const TextLocale &locale) const
{
    if (!overAttributed)
        return std::nullopt;
    return line(wordsOf(overAttributionSource()).sentence,
                " The bar's segments therefore exceed the measured total of ") +
           NumberText::grouped(total, locale) +
           " tokens, and there is no hidden remainder to show.";
}

std::optional<std::string> ScanReport::unreportedCategoryFilesNote() const
{
    if (categoriesSelfReported || files().empty())
        return std::nullopt;
    return "Claude did not self-report categories for this session, so the \"Startup context "
           "(categories not self-reported)\" row already carries the whole measured total. The "
           "instruction files below are local estimates of what makes up that total, not "
           "additional tokens on top of it.";
}

namespace ScanReportBuilder {

ScanReport build(const RepoSelection &selection, const ProbeResult &probe,
                 const InstructionFileSet &files)
{
    AttributionOutcome outcome = SlabAttributor::attribute(
        probe.authoritativeTotal, probe.selfReportedSlabs, files.localCategories());
    return {.repositoryName = selection.displayName,
            .repositoryPath = selection.path(),
            .total = probe.authoritativeTotal,
            .totalSource = probe.totalSource,
            .sessionID = probe.sessionID,
            .resolvedCLIPath = probe.resolvedCLIPath,
            .duration = probe.duration,
            .rows = std::move(outcome.rows),
            .fileSet = files,
            .band = OpinionBand::band(probe.authoritativeTotal),
            .remainder = outcome.remainder,
            .overAttributed = outcome.overAttributed,
            .categoriesSelfReported = outcome.categoriesSelfReported,
            .answerLines = probe.answerLines};
}

} // namespace ScanReportBuilder

} // namespace Loadwick
