#include "report/InstructionFileTier.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(InstructionFileTierTest, listsItsCasesInOrder)
{
    ASSERT_EQ(InstructionFileTier::all.size(), 3U);
    EXPECT_EQ(InstructionFileTier::all[0], InstructionFileTier::repository);
    EXPECT_EQ(InstructionFileTier::all[1], InstructionFileTier::inherited);
    EXPECT_EQ(InstructionFileTier::all[2], InstructionFileTier::personal);
}

TEST(InstructionFileTierTest, isNamedLikeItsCase)
{
    EXPECT_EQ(InstructionFileTier(InstructionFileTier::repository).rawValue(), "repository");
    EXPECT_EQ(InstructionFileTier(InstructionFileTier::inherited).rawValue(), "inherited");
    EXPECT_EQ(InstructionFileTier(InstructionFileTier::personal).rawValue(), "personal");
}

TEST(InstructionFileTierTest, comesBackFromItsName)
{
    for (const InstructionFileTier tier : InstructionFileTier::all)
        EXPECT_EQ(InstructionFileTier::fromRawValue(tier.rawValue()), tier);
}

TEST(InstructionFileTierTest, knowsNoOtherName)
{
    for (const char *text : {"", "Repository", "personal ", "user"})
        EXPECT_FALSE(InstructionFileTier::fromRawValue(text)) << text;
}

} // namespace Loadwick
