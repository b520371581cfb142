#include "report/InstructionFileSet.h"

#include <limits>

#include <gtest/gtest.h>

#include "report/ScanReport.h"
#include "support/EnumerationNames.h"

namespace Loadwick {

namespace {

InstructionFileEstimate fileOf(const char *path, std::int64_t byteCount)
{
    return InstructionFileEstimate::fromPath(path, byteCount);
}

InstructionFileSet sampleSet()
{
    return {.repositoryFiles = {fileOf("/r/CLAUDE.md", 400), fileOf("/r/AGENTS.md", 5)},
            .inheritedFiles = {fileOf("/CLAUDE.md", 40)},
            .personalFiles = {fileOf("/h/.claude/CLAUDE.md", 8)},
            .unreadablePaths = {}};
}

} // namespace

TEST(InstructionFileSetTest, isEmptyInAllFourLists)
{
    EXPECT_EQ(InstructionFileSet::empty, (InstructionFileSet{{}, {}, {}, {}}));
}

TEST(InstructionFileSetTest, returnsTheFilesOfATier)
{
    const InstructionFileSet set = sampleSet();
    EXPECT_EQ(&set.files(InstructionFileTier::repository), &set.repositoryFiles);
    EXPECT_EQ(&set.files(InstructionFileTier::inherited), &set.inheritedFiles);
    EXPECT_EQ(&set.files(InstructionFileTier::personal), &set.personalFiles);
}

TEST(InstructionFileSetTest, joinsTheTiersInOrder)
{
    const std::vector<InstructionFileEstimate> expected{
        fileOf("/r/CLAUDE.md", 400), fileOf("/r/AGENTS.md", 5), fileOf("/CLAUDE.md", 40),
        fileOf("/h/.claude/CLAUDE.md", 8)};
    EXPECT_EQ(sampleSet().allFiles(), expected);
}

TEST(InstructionFileSetTest, namesTheCategoriesOfTheReport)
{
    EXPECT_EQ(InstructionFileSet::categoryName(InstructionFileTier::repository),
              "Repository instructions");
    EXPECT_EQ(InstructionFileSet::categoryName(InstructionFileTier::inherited),
              "Inherited project instructions");
    EXPECT_EQ(InstructionFileSet::categoryName(InstructionFileTier::personal),
              "Personal instructions");
    EXPECT_EQ(InstructionFileSet::categoryName(InstructionFileTier::personal),
              ScanReport::personalCategoryName);
}

TEST(InstructionFileSetTest, estimatesEachTierUnderItsMatchTerms)
{
    const std::vector<LocalCategoryEstimate> expected{
        {"Repository instructions",
         102,
         {"memoryfiles", "claudemd", "projectinstructions", "repoinstructions", "projectmemory"}},
        {"Inherited project instructions",
         10,
         {"memoryfiles", "claudemd", "projectinstructions", "repoinstructions", "projectmemory",
          "inheritedinstructions", "ancestormemory", "parentinstructions"}},
        {"Personal instructions",
         2,
         {"memoryfiles", "claudemd", "userinstructions", "usermemory", "globalinstructions",
          "personalmemory"}}};
    EXPECT_EQ(sampleSet().localCategories(), expected);
}

TEST(InstructionFileSetTest, estimatesNoTierWithoutTokens)
{
    InstructionFileSet set = sampleSet();
    set.repositoryFiles = {fileOf("/r/CLAUDE.md", 0)};
    set.personalFiles.clear();
    const std::vector<LocalCategoryEstimate> categories = set.localCategories();
    ASSERT_EQ(categories.size(), 1U);
    EXPECT_EQ(categories[0].name, "Inherited project instructions");
    EXPECT_TRUE(InstructionFileSet::empty.localCategories().empty());
}

TEST(InstructionFileSetTest, endsTheProgramWhenASumOverflows)
{
    InstructionFileSet set;
    set.personalFiles = {{"/a", 0, std::numeric_limits<std::int64_t>::max()}, {"/b", 0, 1}};
    EXPECT_DEATH((void)set.localCategories(), "does not fit 64 bits");
}

TEST(InstructionFileSetTest, followsTheImportsThatLeadToAFile)
{
    InstructionFileSet set;
    set.importers = {{"/c", "/b"}, {"/b", "/a"}};
    EXPECT_EQ(set.importChain("/c"), (std::vector<std::string_view>{"/b", "/a"}));
    EXPECT_TRUE(set.importChain("/a").empty());
}

TEST(InstructionFileSetTest, endsAChainOfImportsThatComesBackToItself)
{
    InstructionFileSet set;
    set.importers = {{"/a", "/b"}, {"/b", "/a"}};
    EXPECT_EQ(set.importChain("/a"), (std::vector<std::string_view>{"/b", "/a"}));
}

// They are shown: a page that took such sets for equal would keep the wrong reason.
TEST(InstructionFileSetTest, equalSetsHaveTheSameImporters)
{
    InstructionFileSet set;
    set.importers = {{"/c", "/b"}, {"/b", "/a"}};
    InstructionFileSet other;
    other.importers = {{"/b", "/a"}, {"/c", "/b"}};
    EXPECT_EQ(set, other);
    other.importers["/c"] = "/a";
    EXPECT_NE(set, other);
}

TEST(InstructionFileSetTest, namesTheTiers)
{
    expectNames<InstructionFileTier>({"repository", "inherited", "personal"});
}

TEST(InstructionFileSetTest, estimatesFourBytesToATokenRoundedUp)
{
    const auto tokens = InstructionFileEstimate::estimatedTokensForByteCount;
    for (const std::int64_t byteCount : {1, 2, 3, 4})
        EXPECT_EQ(tokens(byteCount), 1) << byteCount;
    EXPECT_EQ(tokens(5), 2);
    EXPECT_EQ(tokens(8), 2);
    EXPECT_EQ(tokens(4'000), 1'000);
    EXPECT_EQ(tokens(4'001), 1'001);
    EXPECT_EQ(tokens(std::numeric_limits<std::int64_t>::max()), std::int64_t{1} << 61);
}

TEST(InstructionFileSetTest, estimatesNothingForLessThanOneByte)
{
    for (const std::int64_t byteCount :
         {std::int64_t{0}, std::int64_t{-1}, std::numeric_limits<std::int64_t>::min()})
        EXPECT_EQ(InstructionFileEstimate::estimatedTokensForByteCount(byteCount), 0);
}

TEST(InstructionFileSetTest, computesAFilesTokensFromItsBytes)
{
    const InstructionFileEstimate expected{"/a/CLAUDE.md", 10, 3};
    EXPECT_EQ(InstructionFileEstimate::fromPath("/a/CLAUDE.md", 10), expected);
}

} // namespace Loadwick
