#include "report/OpinionBand.h"

#include "text/NumberText.h"

namespace Loadwick {

const std::string_view OpinionBand::opinionNote =
    "These bands are this app's opinion, not an industry standard.";

const std::string_view OpinionBand::anchorNote =
    "Anchor: a measured subagent startup slab on this machine was 24,508 tokens "
    "(halden-machine-config tests/context_probe_record.json, 2026-08-23). A main session adds "
    "catalogues a subagent does not receive, so 30,000 sits just above that measured floor, and "
    "60,000 is where startup exceeds a quarter of a 200k window.";

const std::array<OpinionBand, 3> OpinionBand::all{OpinionBand::lean, OpinionBand::heavy,
                                                  OpinionBand::excessive};

OpinionBand OpinionBand::band(std::int64_t startupTokens) noexcept
{
    if (startupTokens < heavyThreshold)
        return lean;
    return startupTokens <= excessiveThreshold ? heavy : excessive;
}

std::string_view OpinionBand::rawValue() const noexcept
{
    switch (m_value) {
    case lean:
        return "lean";
    case heavy:
        return "heavy";
    case excessive:
        break;
    }
    return "excessive";
}

std::optional<OpinionBand> OpinionBand::fromRawValue(std::string_view text) noexcept
{
    for (const OpinionBand band : all)
        if (band.rawValue() == text)
            return band;
    return std::nullopt;
}

std::string_view OpinionBand::title() const noexcept
{
    switch (m_value) {
    case lean:
        return "Lean";
    case heavy:
        return "Heavy";
    case excessive:
        break;
    }
    return "Excessive";
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

} // namespace Loadwick
