#include "report/SlabAttributor.h"

#include <limits>

#include <gtest/gtest.h>

#include "probe/SlabParser.h"
#include "report/InstructionFileSet.h"
#include "support/EnumerationNames.h"

namespace Loadwick {

namespace {

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
constexpr Provenance selfReported = Provenance::selfReported;
constexpr Provenance localEstimate = Provenance::localEstimate;

LocalCategoryEstimate repositoryEstimate(std::int64_t tokens)
{
    return {"Repository instructions", tokens, {"memoryfiles", "claudemd"}};
}

LocalCategoryEstimate personalEstimate(std::int64_t tokens)
{
    return {"Personal instructions", tokens, {"memoryfiles", "usermemory"}};
}

AttributionOutcome attributed(std::int64_t total, const std::vector<SelfReportedSlab> &slabs,
                              const std::vector<LocalCategoryEstimate> &estimates)
{
    return SlabAttributor::attribute(total, slabs, estimates);
}

using Rows = std::vector<SlabAttribution>;

} // namespace

TEST(SlabAttributorTest, hasFixedLabels)
{
    EXPECT_EQ(SlabAttributor::remainderLabel, "Unattributed");
    EXPECT_EQ(SlabAttributor::unreportedCategoriesLabel,
              "Startup context (categories not self-reported)");
    EXPECT_EQ(SlabAttributor::beyondLocalEstimateSuffix, " (beyond local estimate)");
}

TEST(SlabAttributorTest, putsAnUnreportedTotalIntoOneRow)
{
    for (const std::int64_t tokens : {0, 3'000, 90'000}) {
        const AttributionOutcome outcome = attributed(42'000, {}, {repositoryEstimate(tokens)});
        EXPECT_EQ(outcome.rows, (Rows{{"Startup context (categories not self-reported)", 42'000,
                                       Provenance::claudeReported, 0}}));
        EXPECT_EQ(outcome.remainder, 0);
        EXPECT_FALSE(outcome.overAttributed);
        EXPECT_FALSE(outcome.categoriesSelfReported);
    }
}

TEST(SlabAttributorTest, neverShowsANegativeUnreportedTotal)
{
    const AttributionOutcome outcome = attributed(-5, {}, {});
    ASSERT_EQ(outcome.rows.size(), 1U);
    EXPECT_EQ(outcome.rows[0].tokens, 0);
    EXPECT_EQ(outcome.remainder, 0);
    EXPECT_TRUE(outcome.overAttributed);
}

TEST(SlabAttributorTest, showsOnlyTheExcessBeyondALocalEstimate)
{
    const AttributionOutcome outcome =
        attributed(5'000, {{"Memory files", 5'000}}, {repositoryEstimate(3'000)});
    EXPECT_EQ(outcome.rows,
              (Rows{{"Repository instructions", 3'000, localEstimate, 1},
                    {"Memory files (beyond local estimate)", 2'000, selfReported, 0}}));
    EXPECT_EQ(outcome.remainder, 0);
    EXPECT_FALSE(outcome.overAttributed);
    EXPECT_TRUE(outcome.categoriesSelfReported);
}

TEST(SlabAttributorTest, absorbsASelfReportThatTheEstimateCovers)
{
    const AttributionOutcome outcome =
        attributed(3'000, {{"Memory files", 2'000}}, {repositoryEstimate(3'000)});
    EXPECT_EQ(outcome.rows, (Rows{{"Repository instructions", 3'000, localEstimate, 0}}));
    EXPECT_TRUE(outcome.categoriesSelfReported);
}

TEST(SlabAttributorTest, drawsOnEveryMatchingEstimate)
{
    const AttributionOutcome outcome = attributed(
        5'000, {{"Memory files", 5'000}}, {repositoryEstimate(3'000), personalEstimate(1'000)});
    EXPECT_EQ(outcome.rows, (Rows{{"Repository instructions", 3'000, localEstimate, 1},
                                  {"Memory files (beyond local estimate)", 1'000, selfReported, 0},
                                  {"Personal instructions", 1'000, localEstimate, 2}}));
}

TEST(SlabAttributorTest, sharesOneBudgetAmongTheSlabsThatMatchIt)
{
    const AttributionOutcome outcome = attributed(
        10'000, {{"Memory files", 2'000}, {"CLAUDE.md", 2'500}}, {repositoryEstimate(3'000)});
    EXPECT_EQ(outcome.rows, (Rows{{"Unattributed", 5'500, Provenance::remainder, 2},
                                  {"Repository instructions", 3'000, localEstimate, 1},
                                  {"CLAUDE.md (beyond local estimate)", 1'500, selfReported, 0}}));
    EXPECT_EQ(outcome.remainder, 5'500);
}

TEST(SlabAttributorTest, matchesAnEstimateByItsOwnName)
{
    const AttributionOutcome outcome =
        attributed(100, {{"repository_INSTRUCTIONS", 100}}, {{"Repository instructions", 100, {}}});
    EXPECT_EQ(outcome.rows, (Rows{{"Repository instructions", 100, localEstimate, 0}}));
}

TEST(SlabAttributorTest, normalisesMatchTermsToo)
{
    const AttributionOutcome outcome =
        attributed(100, {{"memoryfiles", 100}}, {{"Files", 100, {"Memory Files"}}});
    EXPECT_EQ(outcome.rows, (Rows{{"Files", 100, localEstimate, 0}}));
}

TEST(SlabAttributorTest, flagsRowsThatExceedTheTotal)
{
    const AttributionOutcome outcome =
        attributed(4'000, {{"Messages", 2'000}}, {repositoryEstimate(3'000)});
    EXPECT_EQ(outcome.rows, (Rows{{"Repository instructions", 3'000, localEstimate, 1},
                                  {"Messages", 2'000, selfReported, 0}}));
    EXPECT_EQ(outcome.remainder, 0);
    EXPECT_TRUE(outcome.overAttributed);
}

TEST(SlabAttributorTest, ordersEqualRowsByName)
{
    const AttributionOutcome outcome =
        attributed(200, {{"Messages", 100}, {"Custom agents", 100}}, {});
    EXPECT_EQ(outcome.rows,
              (Rows{{"Custom agents", 100, selfReported, 1}, {"Messages", 100, selfReported, 0}}));
}

TEST(SlabAttributorTest, keepsEqualRowsInOrderOfCreation)
{
    const AttributionOutcome outcome =
        attributed(40, {{"Unattributed", 10}}, {{"Unattributed", 10, {"x"}}, {"x", 10, {}}});
    EXPECT_EQ(outcome.rows, (Rows{{"Unattributed", 20, Provenance::remainder, 2},
                                  {"Unattributed", 10, localEstimate, 0},
                                  {"x", 10, localEstimate, 1}}));
    const AttributionOutcome twins =
        attributed(20, {{"a", 0}}, {{"Files", 10, {}}, {"Files", 10, {}}});
    EXPECT_EQ(twins.rows, (Rows{{"Files", 10, localEstimate, 1},
                                {"Files", 10, localEstimate, 2},
                                {"a", 0, selfReported, 0}}));
}

TEST(SlabAttributorTest, keepsAnUnmatchedSlabOfZeroTokensAndDropsAMatchedOne)
{
    EXPECT_EQ(attributed(0, {{"Messages", 0}}, {}).rows, (Rows{{"Messages", 0, selfReported, 0}}));
    EXPECT_EQ(attributed(5, {{"Memory files", 0}}, {repositoryEstimate(5)}).rows,
              (Rows{{"Repository instructions", 5, localEstimate, 0}}));
}

TEST(SlabAttributorTest, ignoresLocalEstimatesWithoutTokens)
{
    for (const std::int64_t tokens : {0, -3})
        EXPECT_EQ(attributed(7, {{"Memory files", 7}}, {repositoryEstimate(tokens)}).rows,
                  (Rows{{"Memory files", 7, selfReported, 0}}));
}

TEST(SlabAttributorTest, mergesRepeatedNamesBeforeMatching)
{
    const AttributionOutcome outcome = attributed(
        5'000, {{"Memory files", 2'000}, {"memory_files", 3'000}}, {repositoryEstimate(4'000)});
    EXPECT_EQ(outcome.rows,
              (Rows{{"Repository instructions", 4'000, localEstimate, 1},
                    {"Memory files (beyond local estimate)", 1'000, selfReported, 0}}));
    EXPECT_TRUE(outcome.categoriesSelfReported);
}

TEST(SlabAttributorTest, mergesIntoTheFirstOccurrence)
{
    const std::vector<SelfReportedSlab> slabs{
        {"System prompt", 3'000}, {"Messages", 1}, {"system-prompt", 200}};
    EXPECT_EQ(SlabAttributor::merged(slabs),
              (std::vector<SelfReportedSlab>{{"System prompt", 3'200}, {"Messages", 1}}));
    EXPECT_TRUE(SlabAttributor::merged({}).empty());
}

TEST(SlabAttributorTest, reducesANameToLettersAndNumbersInLowerCase)
{
    EXPECT_EQ(SlabAttributor::normalize("Memory files"), "memoryfiles");
    EXPECT_EQ(SlabAttributor::normalize("memory_files"), "memoryfiles");
    EXPECT_EQ(SlabAttributor::normalize("CLAUDE.md"), "claudemd");
    EXPECT_EQ(SlabAttributor::normalize("MCP tools (12)"), "mcptools12");
    EXPECT_EQ(SlabAttributor::normalize("ÄÖ Ⅷ²"), "äöⅷ²");
    EXPECT_EQ(SlabAttributor::normalize("→ !"), "");
    EXPECT_EQ(SlabAttributor::normalize("🗂️ Memory files"), "memoryfiles");
    EXPECT_EQ(SlabAttributor::normalize("1️⃣ हिन्दी"), "1हिन्दी");
}

TEST(SlabAttributorTest, endsTheProgramWhenASumOverflows)
{
    EXPECT_DEATH((void)attributed(1, {{"a", largest}, {"b", 1}}, {}), "does not fit 64 bits");
    EXPECT_DEATH((void)attributed(1, {{"a", largest}, {"A", 1}}, {}), "does not fit 64 bits");
    EXPECT_DEATH((void)attributed(-2, {{"a", largest}}, {}), "does not fit 64 bits");
}

TEST(SlabAttributorTest, acceptsTheLargestTotal)
{
    const AttributionOutcome outcome = attributed(largest, {{"a", 1}}, {});
    EXPECT_EQ(outcome.remainder, largest - 1);
}

TEST(SlabAttributorTest, namesTheProvenances)
{
    expectNames<Provenance>({"claudeReported", "selfReported", "localEstimate", "remainder"});
}

TEST(SlabAttributorTest, isAuthoritativeOnlyWhenClaudeReportedIt)
{
    for (const Provenance provenance : Provenance::all)
        EXPECT_EQ(provenance.isAuthoritative(), provenance == Provenance::claudeReported);
}

TEST(SlabAttributorTest, namesTheSourceOfEachFigure)
{
    EXPECT_EQ(Provenance(Provenance::claudeReported).sourceLabel(), "reported by Claude");
    EXPECT_EQ(Provenance(Provenance::selfReported).sourceLabel(),
              "self-reported by the session (estimate)");
    EXPECT_EQ(Provenance(Provenance::localEstimate).sourceLabel(),
              "measured on disk at ~4 bytes/token (estimate)");
    EXPECT_EQ(Provenance(Provenance::remainder).sourceLabel(), "derived: total minus attributed");
}

TEST(SlabAttributorTest, aRowIsIdentifiedByOrdinalProvenanceAndName)
{
    const SlabAttribution row{"Personal instructions", 7, Provenance::localEstimate, 3};
    EXPECT_EQ(row.id(), "3|localEstimate|Personal instructions");
    EXPECT_EQ((SlabAttribution{"a|b", -1, Provenance::remainder, 0}).id(), "0|remainder|a|b");
}

TEST(SlabAttributorTest, rowsCompareEveryField)
{
    const SlabAttribution row{"a", 1, Provenance::selfReported, 0};
    EXPECT_EQ(row, (SlabAttribution{"a", 1, Provenance::selfReported, 0}));
    EXPECT_NE(row, (SlabAttribution{"b", 1, Provenance::selfReported, 0}));
    EXPECT_NE(row, (SlabAttribution{"a", 2, Provenance::selfReported, 0}));
    EXPECT_NE(row, (SlabAttribution{"a", 1, Provenance::localEstimate, 0}));
    EXPECT_NE(row, (SlabAttribution{"a", 1, Provenance::selfReported, 1}));
}

} // namespace Loadwick
