#include "support/SampleFiles.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

namespace Loadwick {

namespace {

const std::string repository = "/home/someone/projects/webshop";

bool allBelow(const std::vector<InstructionFileEstimate> &files, const std::string &folder)
{
    return std::all_of(files.begin(), files.end(), [&](const InstructionFileEstimate &file) {
        return file.path.starts_with(folder + "/");
    });
}

std::set<std::string> pathsOf(const InstructionFileSet &files)
{
    std::set<std::string> paths;
    for (const InstructionFileEstimate &file : files.allFiles())
        paths.insert(file.path);
    return paths;
}

} // namespace

TEST(SampleFilesTest, lieWhereTheirTierLies)
{
    for (const InstructionFileSet &files :
         {SampleFiles::few(repository), SampleFiles::some(repository),
          SampleFiles::many(repository), SampleFiles::numbered(repository, 30)}) {
        EXPECT_TRUE(allBelow(files.repositoryFiles, repository));
        EXPECT_TRUE(allBelow(files.inheritedFiles, "/home/someone/projects"));
        EXPECT_FALSE(files.inheritedFiles.size() > 0 && allBelow(files.inheritedFiles, repository));
        EXPECT_TRUE(allBelow(files.personalFiles, "/home/someone/.claude"));
    }
}

TEST(SampleFilesTest, standOnceInTheirSet)
{
    EXPECT_EQ(pathsOf(SampleFiles::many(repository)).size(),
              SampleFiles::many(repository).allFiles().size());
    EXPECT_EQ(pathsOf(SampleFiles::numbered(repository, 1'000)).size(), 1'000U);
}

TEST(SampleFilesTest, listUnreadablePathsInAscendingOrder)
{
    const std::vector<std::string> paths = SampleFiles::many(repository).unreadablePaths;
    EXPECT_TRUE(std::is_sorted(paths.begin(), paths.end()));
    EXPECT_EQ(paths.size(), 4U);
}

TEST(SampleFilesTest, haveOnePathThatIsEstimatedAndUnreadable)
{
    const InstructionFileSet files = SampleFiles::many(repository);
    const std::set<std::string> estimated = pathsOf(files);
    EXPECT_EQ(std::count_if(files.unreadablePaths.begin(), files.unreadablePaths.end(),
                            [&](const std::string &path) { return estimated.contains(path); }),
              1);
}

TEST(SampleFilesTest, areAsManyAsAsked)
{
    EXPECT_EQ(SampleFiles::few(repository).allFiles().size(), 3U);
    EXPECT_EQ(SampleFiles::some(repository).allFiles().size(), 11U);
    EXPECT_EQ(SampleFiles::many(repository).allFiles().size(), 31U);
    EXPECT_TRUE(SampleFiles::numbered(repository, 0).allFiles().empty());
    const InstructionFileSet spread = SampleFiles::numbered(repository, 7);
    EXPECT_EQ(spread.repositoryFiles.size(), 3U);
    EXPECT_EQ(spread.inheritedFiles.size(), 2U);
    EXPECT_EQ(spread.personalFiles.size(), 2U);
}

} // namespace Loadwick
