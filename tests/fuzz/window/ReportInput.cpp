#include "fuzz/window/ReportInput.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <string>

#include "fuzz/FuzzInput.h"
#include "probe/SlabParser.h"
#include "report/RepoSelection.h"
#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

constexpr std::array locales{"en_US", "de_DE", "ar_EG", "hi_IN", "fr_CH"};
constexpr std::size_t mostLines = 24; // whose tokens cannot overflow

std::int64_t takeNumber(FuzzInput &line)
{
    const std::int64_t number = line.takeInteger(FuzzInput::largestLimit);
    if (line.rest().starts_with(' '))
        static_cast<void>(line.takeUpTo(' '));
    return number;
}

/// The lines behind the second, sorted by what they add to.
struct Lines
{
    std::string answer;
    InstructionFileSet files;
    std::vector<std::int64_t> earlierTotals;
    std::optional<WeeklyKPILine> weekly;
};

void addFile(InstructionFileTier tier, FuzzInput line, InstructionFileSet &files)
{
    const std::int64_t byteCount = takeNumber(line);
    std::string path = "/" + repairedUtf8(line.takeUpTo('>'));
    if (!line.isAtEnd())
        files.importers.emplace(path, "/" + repairedUtf8(line.rest()));
    files.files(tier).push_back(InstructionFileEstimate::fromPath(std::move(path), byteCount));
}

WeeklyKPILine weeklyLine(FuzzInput line)
{
    const std::int64_t median = takeNumber(line);
    const std::string words = repairedUtf8(line.rest());
    return {.medianTokensPerSession = median,
            .tokensPerPR = takeNumber(line),
            .totalTokens = std::nullopt,
            .mergedPRs = std::nullopt,
            .windowStart = words,
            .windowEnd = words,
            .timestamp = words};
}

void addPlus(FuzzInput line, Lines &lines)
{
    const std::string_view kind = line.takeUpTo(' ');
    if (kind == "+r")
        addFile(InstructionFileTier::repository, line, lines.files);
    else if (kind == "+i")
        addFile(InstructionFileTier::inherited, line, lines.files);
    else if (kind == "+p")
        addFile(InstructionFileTier::personal, line, lines.files);
    else if (kind == "+u")
        lines.files.unreadablePaths.push_back("/" + repairedUtf8(line.rest()));
    else if (kind == "+h")
        lines.earlierTotals.push_back(takeNumber(line));
    else if (kind == "+w")
        lines.weekly = weeklyLine(line);
}

Lines linesOf(FuzzInput input)
{
    Lines lines;
    for (std::size_t count = 0; !input.isAtEnd(); ++count) {
        const std::string_view line = input.takeLine();
        if (!line.starts_with('+'))
            lines.answer.append(line).append("\n");
        else if (count < mostLines)
            addPlus(FuzzInput(line), lines);
    }
    std::vector<std::string> &paths = lines.files.unreadablePaths;
    std::sort(paths.begin(), paths.end());
    paths.erase(std::unique(paths.begin(), paths.end()), paths.end());
    return lines;
}

bool canBeSummed(const SelfReportedSlabs &slabs)
{
    for (std::size_t index = 0; index < slabs.size(); ++index)
        if (slabs.tokens(index) > FuzzInput::largestLimit)
            return false;
    return slabs.size() <= mostLines;
}

std::vector<RecordedScan> historyOf(const ScanReport &report,
                                    const std::vector<std::int64_t> &totals)
{
    constexpr std::chrono::sys_seconds march(std::chrono::seconds(1'772'615'727));
    const Uuid id = *Uuid::fromText("00112233-4455-6677-8899-AABBCCDDEEFF");
    std::vector<RecordedScan> history;
    for (const std::int64_t total : totals) {
        const auto date = march + std::chrono::hours(history.size());
        history.push_back(RecordedScan::fromReport(report, date, id));
        history.back().total = total;
    }
    history.push_back(
        RecordedScan::fromReport(report, march + std::chrono::hours(history.size()), id));
    return history;
}

} // namespace

std::optional<ReportInput> ReportInput::of(std::string_view bytes)
{
    FuzzInput input(bytes);
    FuzzInput head(input.takeLine());
    const std::int64_t total = takeNumber(head);
    const auto locale = static_cast<std::size_t>(takeNumber(head)) % locales.size();
    const auto milliseconds = std::abs(static_cast<double>(takeNumber(head)));
    const std::string path = "/home/someone/" + std::string(input.takeLine());
    const Lines lines = linesOf(input);
    const SlabParser::Answer answer = SlabParser::read(lines.answer);
    if (!canBeSummed(answer.slabs))
        return std::nullopt;
    const ProbeResult probe{.sessionID = "session",
                            .authoritativeTotal = total,
                            .totalSource = TotalSource::transcript,
                            .selfReportedSlabs = answer.slabs,
                            .duration = milliseconds / 1000,
                            .resolvedCLIPath = "/usr/bin/claude",
                            .answerLines = answer.lines};
    ReportInput made{.locale = {locales.at(locale), locales.at(locale)},
                     .report =
                         ScanReportBuilder::build(RepoSelection::fromUrl(path), probe, lines.files),
                     .history = {},
                     .weekly = lines.weekly};
    made.history = historyOf(made.report, lines.earlierTotals);
    return made;
}

} // namespace Loadwick
