#include "report/Provenance.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(ProvenanceTest, listsItsCasesInOrder)
{
    const std::array<std::string_view, 4> names{"claudeReported", "selfReported", "localEstimate",
                                                "remainder"};
    for (std::size_t index = 0; index < names.size(); ++index)
        EXPECT_EQ(Provenance::all[index].rawValue(), names[index]);
}

TEST(ProvenanceTest, comesBackFromItsName)
{
    for (const Provenance provenance : Provenance::all)
        EXPECT_EQ(Provenance::fromRawValue(provenance.rawValue()), provenance);
    for (const char *text : {"", "ClaudeReported", "remainder "})
        EXPECT_FALSE(Provenance::fromRawValue(text)) << text;
}

TEST(ProvenanceTest, isAuthoritativeOnlyWhenClaudeReportedIt)
{
    for (const Provenance provenance : Provenance::all)
        EXPECT_EQ(provenance.isAuthoritative(), provenance == Provenance::claudeReported);
}

TEST(ProvenanceTest, saysWhereAFigureComesFrom)
{
    EXPECT_EQ(Provenance(Provenance::claudeReported).sourceLabel(), "reported by Claude");
    EXPECT_EQ(Provenance(Provenance::selfReported).sourceLabel(),
              "self-reported by the session (estimate)");
    EXPECT_EQ(Provenance(Provenance::localEstimate).sourceLabel(),
              "measured on disk at ~4 bytes/token (estimate)");
    EXPECT_EQ(Provenance(Provenance::remainder).sourceLabel(), "derived: total minus attributed");
}

} // namespace Loadwick
