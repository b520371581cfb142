#include "history/WeeklyKPIReader.h"

#include <limits>

#include "posix/RegularFile.h"
#include "text/Fatal.h"
#include "text/TextLines.h"
#include "text/UnicodeText.h"
#include "json/JsonReader.h"

namespace Loadwick {

std::int64_t WeeklyKPILine::medianDelta() const noexcept
{
    return checkedDifference(medianTokensPerSession, WeeklyKPIReader::medianTokensPerSessionTarget);
}

std::int64_t WeeklyKPILine::tokensPerPRDelta() const noexcept
{
    return checkedDifference(tokensPerPR, WeeklyKPIReader::tokensPerPRTarget);
}

namespace WeeklyKPIReader {

namespace {

std::string wordsOf(const JsonValue &object, std::string_view key)
{
    const std::string *const text = textOf(member(object, key));
    return text != nullptr ? *text : "unknown";
}

/// A figure that can be compared with `target`: an integer so far below zero that the difference
/// does not fit 64 bits counts as none.
std::optional<std::int64_t> comparedFigure(const JsonValue &object, std::string_view key,
                                           std::int64_t target)
{
    const auto figure = exactInteger(member(object, key));
    if (figure && *figure < std::numeric_limits<std::int64_t>::min() + target)
        return std::nullopt;
    return figure;
}

std::optional<WeeklyKPILine> parseLine(std::string_view line)
{
    line = withoutByteOrderMark(line);
    // A log may hold millions of blank lines: skipping one must cost less than a JSON reader.
    if (!trimmed(line).starts_with('{'))
        return std::nullopt;
    const auto object =
        jsonObjectOfScalars(line, {"median_tokens_per_session", "tokens_per_pr", "total_tokens",
                                   "merged_prs", "window.start", "window.end", "timestamp"});
    if (!object)
        return std::nullopt;
    const auto median =
        comparedFigure(*object, "median_tokens_per_session", medianTokensPerSessionTarget);
    const auto tokensPerPR = comparedFigure(*object, "tokens_per_pr", tokensPerPRTarget);
    if (!median || !tokensPerPR)
        return std::nullopt;
    const JsonValue *const window = member(*object, "window");
    const JsonValue none;
    return WeeklyKPILine{.medianTokensPerSession = *median,
                         .tokensPerPR = *tokensPerPR,
                         .totalTokens = exactInteger(member(*object, "total_tokens")),
                         .mergedPRs = exactInteger(member(*object, "merged_prs")),
                         .windowStart = wordsOf(window != nullptr ? *window : none, "start"),
                         .windowEnd = wordsOf(window != nullptr ? *window : none, "end"),
                         .timestamp = wordsOf(*object, "timestamp")};
}

/// The last bytes of the file, after their first line feed; nothing without one or on a failed
/// read.
std::optional<std::string> readEnd(RegularFile &file, std::size_t byteLimit)
{
    if (!file.skipTo(file.size() - static_cast<std::int64_t>(byteLimit)))
        return std::nullopt;
    auto end = file.readUpTo(byteLimit);
    const std::size_t lineFeed = end ? end->find('\n') : std::string::npos;
    if (lineFeed == std::string::npos)
        return std::nullopt;
    end->erase(0, lineFeed + 1);
    return end;
}

} // namespace

std::string defaultPath(std::string_view home)
{
    return std::string(home).append("/Library/Logs/token-kpi/weekly.jsonl");
}

std::optional<WeeklyKPILine> read(const std::filesystem::path &path, std::size_t byteLimit)
{
    auto file = RegularFile::open(path);
    if (!file)
        return std::nullopt;
    const bool isLong = file->size() > static_cast<std::int64_t>(byteLimit);
    const auto text = isLong ? readEnd(*file, byteLimit) : file->readUpTo(byteLimit);
    if (!text || !isUtf8(*text))
        return std::nullopt;
    return parseLatest(*text);
}

std::optional<WeeklyKPILine> parseLatest(std::string_view text)
{
    while (const auto line = takeLastLine(text))
        if (auto found = parseLine(*line))
            return found;
    return std::nullopt;
}

} // namespace WeeklyKPIReader

} // namespace Loadwick
