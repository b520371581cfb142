#include "samples/ThrowAwayHome.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

#include "history/ScanHistoryStore.h"
#include "report/InstructionFileScanner.h"

namespace Loadwick {

TEST(ThrowAwayHomeTest, holdsInstructionFilesOfAllThreeTiers)
{
    const ThrowAwayHome home;
    const InstructionFileScanner scanner({.home = home.path().string()});
    const InstructionFileSet files = scanner.scanSynchronously(home.repository());
    EXPECT_EQ(files.repositoryFiles.size(), 6u);
    EXPECT_EQ(files.inheritedFiles.size(), 1u);
    EXPECT_EQ(files.personalFiles.size(), 2u);
    EXPECT_TRUE(files.unreadablePaths.empty());
}

TEST(ThrowAwayHomeTest, holdsAHistoryOfSeveralRepositories)
{
    const ThrowAwayHome home;
    const std::vector<RecordedScan> scans = ScanHistoryStore(home.historyFolder()).load();
    std::set<std::string> repositories;
    for (const RecordedScan &scan : scans)
        repositories.insert(scan.repositoryPath);
    EXPECT_GE(scans.size(), 12u);
    EXPECT_GE(repositories.size(), 4u);
    EXPECT_EQ(repositories.count(home.repository().string()), 1u);
}

TEST(ThrowAwayHomeTest, holdsEveryRepositoryOfItsHistory)
{
    const ThrowAwayHome home;
    const InstructionFileScanner scanner({.home = home.path().string()});
    for (const RecordedScan &scan : ScanHistoryStore(home.historyFolder()).load()) {
        const InstructionFileSet files = scanner.scanSynchronously(scan.repositoryPath);
        EXPECT_GE(files.repositoryFiles.size(), 1u) << scan.repositoryPath;
        EXPECT_EQ(files.inheritedFiles.size(), 1u) << scan.repositoryPath;
    }
}

TEST(ThrowAwayHomeTest, keepsItsHistoryWhereTheProgramLooksForIt)
{
    const ThrowAwayHome home;
    EXPECT_EQ(ScanHistoryStore::defaultDirectory({{"HOME", home.path().string()}}),
              home.historyFolder());
}

TEST(ThrowAwayHomeTest, isRemovedAtTheEnd)
{
    std::filesystem::path path;
    {
        const ThrowAwayHome home;
        path = home.path();
        EXPECT_TRUE(std::filesystem::exists(home.standIn().executable()));
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

} // namespace Loadwick
