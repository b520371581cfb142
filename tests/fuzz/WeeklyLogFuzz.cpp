#include <cstdint>
#include <string>
#include <utility>

#include "fuzz/FuzzTarget.h"
#include "fuzz/JsonOracle.h"
#include "history/WeeklyKPIReader.h"
#include "text/TextLines.h"

namespace Loadwick {

namespace {

using Line = std::optional<WeeklyKPILine>;

std::string wordsOf(const nlohmann::json *object, const char *key)
{
    return JsonOracle::text(JsonOracle::find(object, key)).value_or("unknown");
}

/// A figure whose difference to its target fits 64 bits.
std::optional<std::int64_t> figureOf(const nlohmann::json *object, const char *key,
                                     std::int64_t target)
{
    const auto figure = JsonOracle::integer(JsonOracle::find(object, key));
    std::int64_t difference = 0;
    const bool fits = figure && !__builtin_sub_overflow(*figure, target, &difference);
    return fits ? figure : std::nullopt;
}

/// A fully parsed line by the rule in words.
Line lineByTheRule(const nlohmann::json *object)
{
    const auto median = figureOf(object, "median_tokens_per_session",
                                 WeeklyKPIReader::medianTokensPerSessionTarget);
    const auto perPR = figureOf(object, "tokens_per_pr", WeeklyKPIReader::tokensPerPRTarget);
    if (!median || !perPR)
        return std::nullopt;
    const nlohmann::json *const window = JsonOracle::find(object, "window");
    return WeeklyKPILine{.medianTokensPerSession = *median,
                         .tokensPerPR = *perPR,
                         .totalTokens =
                             JsonOracle::integer(JsonOracle::find(object, "total_tokens")),
                         .mergedPRs = JsonOracle::integer(JsonOracle::find(object, "merged_prs")),
                         .windowStart = wordsOf(window, "start"),
                         .windowEnd = wordsOf(window, "end"),
                         .timestamp = wordsOf(object, "timestamp")};
}

void checkWeeklyLog(std::string_view input)
{
    Line newest;
    bool isJudged = true;
    std::string_view rest = input;
    while (const auto line = takeLine(rest)) {
        const bool isMarked = line->starts_with("\uFEFF");
        const JsonOracle oracle = JsonOracle::of(line->substr(isMarked ? 3 : 0));
        isJudged = isJudged && oracle.isJudge;
        if (auto found = lineByTheRule(oracle.object ? &*oracle.object : nullptr))
            newest = std::move(found);
    }
    const Line latest = WeeklyKPIReader::parseLatest(input);
    require(!isJudged || latest == newest, "the last line that can be used counts");
    if (!latest)
        return;
    require(latest->medianDelta() + WeeklyKPIReader::medianTokensPerSessionTarget ==
                latest->medianTokensPerSession,
            "the median is its target and the difference");
    require(latest->tokensPerPRDelta() + WeeklyKPIReader::tokensPerPRTarget == latest->tokensPerPR,
            "the tokens for each request are their target and the difference");
}

const FuzzTarget target("WeeklyLog", checkWeeklyLog);

} // namespace

} // namespace Loadwick
