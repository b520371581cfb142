#include "report/OpinionBand.h"

#include <limits>

#include <gtest/gtest.h>

namespace Loadwick {

TEST(OpinionBandTest, isLeanBelowTheLowerThreshold)
{
    EXPECT_EQ(OpinionBand::band(29'999), OpinionBand::lean);
    EXPECT_EQ(OpinionBand::band(0), OpinionBand::lean);
    EXPECT_EQ(OpinionBand::band(-1), OpinionBand::lean);
    EXPECT_EQ(OpinionBand::band(std::numeric_limits<std::int64_t>::min()), OpinionBand::lean);
}

TEST(OpinionBandTest, isHeavyAtBothThresholdsAndBetween)
{
    EXPECT_EQ(OpinionBand::band(30'000), OpinionBand::heavy);
    EXPECT_EQ(OpinionBand::band(45'000), OpinionBand::heavy);
    EXPECT_EQ(OpinionBand::band(60'000), OpinionBand::heavy);
}

TEST(OpinionBandTest, isExcessiveAboveTheUpperThreshold)
{
    EXPECT_EQ(OpinionBand::band(60'001), OpinionBand::excessive);
    EXPECT_EQ(OpinionBand::band(std::numeric_limits<std::int64_t>::max()), OpinionBand::excessive);
}

TEST(OpinionBandTest, listsItsCasesInOrderWithTheirTitles)
{
    const std::array<std::string_view, 3> names{"lean", "heavy", "excessive"};
    const std::array<std::string_view, 3> titles{"Lean", "Heavy", "Excessive"};
    for (std::size_t index = 0; index < names.size(); ++index) {
        EXPECT_EQ(OpinionBand::all[index].rawValue(), names[index]);
        EXPECT_EQ(OpinionBand::all[index].title(), titles[index]);
    }
}

TEST(OpinionBandTest, comesBackFromItsName)
{
    for (const OpinionBand band : OpinionBand::all)
        EXPECT_EQ(OpinionBand::fromRawValue(band.rawValue()), band);
    for (const char *text : {"", "Lean", "bloated"})
        EXPECT_FALSE(OpinionBand::fromRawValue(text)) << text;
}

TEST(OpinionBandTest, saysItsBoundsInTheLocalesFigures)
{
    const TextLocale english;
    EXPECT_EQ(OpinionBand(OpinionBand::lean).range(english), "under 30,000");
    EXPECT_EQ(OpinionBand(OpinionBand::heavy).range(english), "30,000\u201360,000");
    EXPECT_EQ(OpinionBand(OpinionBand::excessive).range(english), "over 60,000");
    EXPECT_EQ(OpinionBand(OpinionBand::heavy).range({.numbers = "de_DE"}), "30.000\u201360.000");
}

TEST(OpinionBandTest, ownsItsNotes)
{
    EXPECT_EQ(OpinionBand::opinionNote,
              "These bands are this app's opinion, not an industry standard.");
    EXPECT_EQ(OpinionBand::anchorNote,
              "Anchor: a measured subagent startup slab on this machine was 24,508 tokens "
              "(halden-machine-config tests/context_probe_record.json, 2026-08-23). A main session "
              "adds catalogues a subagent does not receive, so 30,000 sits just above that "
              "measured floor, and 60,000 is where startup exceeds a quarter of a 200k window.");
}

} // namespace Loadwick
