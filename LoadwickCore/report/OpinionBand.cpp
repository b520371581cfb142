#include "report/OpinionBand.h"

#include <algorithm>
#include <limits>

#include "text/NumberText.h"

namespace Loadwick {

namespace {

struct BandWords
{
    std::string_view rawValue;
    std::string_view title;
};

BandWords wordsOf(OpinionBand band) noexcept
{
    switch (band) {
    case OpinionBand::lean:
        return {"lean", "Lean"};
    case OpinionBand::heavy:
        return {"heavy", "Heavy"};
    case OpinionBand::excessive:
        break;
    }
    return {"excessive", "Excessive"};
}

} // namespace

const std::string_view OpinionBand::opinionNote =
    "These bands are this app's opinion, not an industry standard.";

const std::string_view OpinionBand::anchorNote =
    "Anchor: a measured subagent startup slab on this machine was 24,508 tokens "
    "(halden-machine-config tests/context_probe_record.json, 2026-08-23). A main session adds "
    "catalogues a subagent does not receive, so 30,000 sits just above that measured floor, and "
    "60,000 is where startup exceeds a quarter of a 200k window.";

OpinionBand OpinionBand::band(std::int64_t startupTokens) noexcept
{
    if (startupTokens < heavyThreshold)
        return lean;
    return startupTokens <= excessiveThreshold ? heavy : excessive;
}

std::string_view OpinionBand::rawValue() const noexcept
{
    return wordsOf(*this).rawValue;
}

std::string_view OpinionBand::title() const noexcept
{
    return wordsOf(*this).title;
}

std::string OpinionBand::range(const TextLocale &locale) const
{
    const std::string lower = NumberText::grouped(heavyThreshold, locale);
    const std::string upper = NumberText::grouped(excessiveThreshold, locale);
    switch (m_value) {
    case lean:
        return "under " + lower;
    case heavy:
        return lower + "–" + upper;
    case excessive:
        break;
    }
    return "over " + upper;
}

namespace BandScale {

std::int64_t maximum(std::int64_t total) noexcept
{
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    if (total < 1)
        return normalMaximum;
    const std::int64_t steps = total / step + 1;
    if (steps > largest / step)
        return largest;
    return std::max(steps * step, normalMaximum);
}

double position(std::int64_t total) noexcept
{
    return thresholdPosition(total, total);
}

double thresholdPosition(std::int64_t threshold, std::int64_t total) noexcept
{
    const double fraction = static_cast<double>(threshold) / static_cast<double>(maximum(total));
    return std::clamp(fraction, 0.0, 1.0);
}

} // namespace BandScale

} // namespace Loadwick
