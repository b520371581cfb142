#include "report/InstructionFileWalk.h"

#include <array>
#include <map>
#include <random>
#include <set>
#include <thread>

#if defined(__linux__)
#include <sys/prctl.h>
#include <unistd.h>
#endif

#include <gtest/gtest.h>

#include "samples/TemporaryFolder.h"

namespace Loadwick {

namespace {

constexpr int fileCount = 12;
using Graph = std::map<int, std::vector<int>>;

std::string fileName(int number)
{
    return number == 0 ? "CLAUDE.md" : "f" + std::to_string(number) + ".md";
}

Graph randomGraph(std::mt19937 &random)
{
    Graph graph;
    std::uniform_int_distribution<int> file(0, fileCount - 1);
    for (int edge = 0; edge < 18; ++edge)
        graph[file(random)].push_back(file(random));
    return graph;
}

void write(const Graph &graph, const TemporaryFolder &folder)
{
    for (int number = 0; number < fileCount; ++number) {
        std::string text;
        const auto imports = graph.find(number);
        if (imports != graph.end())
            for (const int target : imports->second)
                text += "@" + fileName(target) + "\n";
        folder.write("repository/" + fileName(number), text);
    }
}

/// The files that the first one reaches in at most `maxDepth` steps, along any path.
std::set<int> reachable(const Graph &graph, int maxDepth)
{
    std::set<int> reached{0};
    for (int depth = 0; depth < maxDepth; ++depth) {
        const std::set<int> before = reached;
        for (const int number : before)
            if (const auto imports = graph.find(number); imports != graph.end())
                reached.insert(imports->second.begin(), imports->second.end());
    }
    return reached;
}

InstructionFileSet walked(const TemporaryFolder &folder, int maxDepth)
{
    const auto findings = std::make_shared<InstructionFileFindings>();
    const InstructionFileScanner::Settings settings{.home = folder.path() / "home",
                                                    .maxImportDepth = maxDepth};
    InstructionFileWalk(settings, folder.path() / "repository", findings).run();
    return findings->set();
}

} // namespace

TEST(InstructionFileWalkTest, findsEveryFileWithinReachOfTheDepthOnce)
{
    std::mt19937 random(1);
    for (int round = 0; round < 60; ++round) {
        const TemporaryFolder folder;
        const Graph graph = randomGraph(random);
        write(graph, folder);
        const int maxDepth = round % 6;
        std::multiset<std::string> expected;
        for (const int number : reachable(graph, maxDepth))
            expected.insert(folder.path() / "repository" / fileName(number));
        std::multiset<std::string> found;
        for (const InstructionFileEstimate &file : walked(folder, maxDepth).repositoryFiles)
            found.insert(file.path);
        ASSERT_EQ(found, expected) << "round " << round;
    }
}

// Along every way it would take hours.
TEST(InstructionFileWalkTest, followsTheImportsOfAFileAgainOnlyOnAShorterWay)
{
    Graph complete;
    for (int number = 0; number < fileCount; ++number)
        for (int target = 0; target < fileCount; ++target)
            complete[number].push_back(target);
    const TemporaryFolder folder;
    write(complete, folder);
    EXPECT_EQ(walked(folder, 12).repositoryFiles.size(), fileCount);
}

#if defined(__linux__)
TEST(InstructionFileWalkTest, readsAFileThatClaimsToBeEmpty)
{
    const TemporaryFolder folder;
    folder.write("repository/a.md", "x");
    std::array<char, 16> name{};
    prctl(PR_GET_NAME, name.data());
    prctl(PR_SET_NAME, "@a.md");
    std::filesystem::create_symlink("/proc/" + std::to_string(getpid()) + "/comm",
                                    folder.path() / "repository/CLAUDE.md");
    EXPECT_EQ(walked(folder, 1).repositoryFiles.size(), 2U);
    prctl(PR_SET_NAME, name.data());
}
#endif

TEST(InstructionFileWalkTest, findsThePersonalFileWhereNoImportIsFollowed)
{
    const TemporaryFolder folder;
    folder.write("home/.claude/CLAUDE.md", "");
    EXPECT_EQ(walked(folder, 0).personalFiles.size(), 1U);
}

TEST(InstructionFileWalkTest, findsNothingOnceItIsStopped)
{
    const TemporaryFolder folder;
    folder.write("CLAUDE.md", "@a.md");
    const auto findings = std::make_shared<InstructionFileFindings>();
    findings->stop();
    InstructionFileWalk({.home = folder.path()}, folder.path(), findings).run();
    EXPECT_EQ(findings->set(), InstructionFileSet::empty);
}

TEST(InstructionFileWalkTest, admitsNothingAtANegativeDepth)
{
    const TemporaryFolder folder;
    folder.write("repository/CLAUDE.md", "");
    EXPECT_EQ(walked(folder, -1), InstructionFileSet::empty);
    EXPECT_EQ(walked(folder, 0).repositoryFiles.size(), 1U);
}

TEST(InstructionFileWalkTest, resolvesImportsFromTheNameReachedLast)
{
    const TemporaryFolder folder;
    // The link is the shorter way to shared.md, and only the link has a "near.md" beside it.
    folder.write("repository/CLAUDE.md", "@a.md @link/shared.md");
    folder.write("repository/a.md", "@deep/shared.md");
    folder.write("repository/deep/shared.md", "@near.md");
    folder.write("repository/link/near.md", "");
    std::filesystem::create_symlink("../deep/shared.md",
                                    folder.path() / "repository/link/shared.md");
    const InstructionFileSet set = walked(folder, 5);
    ASSERT_EQ(set.repositoryFiles.size(), 4U);
    EXPECT_EQ(set.repositoryFiles[3].path, folder.path() / "repository/link/near.md");
}

TEST(InstructionFileWalkTest, ignoresATrailingSlashOfAnImport)
{
    const TemporaryFolder folder;
    folder.write("repository/CLAUDE.md", "@notes/");
    folder.write("repository/notes", "Be brief.\n");
    const InstructionFileSet set = walked(folder, 5);
    ASSERT_EQ(set.repositoryFiles.size(), 2U);
    EXPECT_EQ(set.repositoryFiles[1].path, folder.path() / "repository/notes");
}

TEST(InstructionFileWalkTest, followsTheImportsOfARepositoryWhosePathIsRelative)
{
    const TemporaryFolder folder;
    folder.write("repository/CLAUDE.md", "@docs/style.md @./tests.md");
    folder.write("repository/docs/style.md", "Be brief.\n");
    folder.write("repository/tests.md", "Test it.\n");
    const auto repository = std::filesystem::relative(folder.path() / "repository");
    const auto findings = std::make_shared<InstructionFileFindings>();
    InstructionFileWalk({.home = folder.path() / "home"}, repository, findings).run();
    const InstructionFileSet set = findings->set();
    ASSERT_EQ(set.repositoryFiles.size(), 3U);
    EXPECT_EQ(set.repositoryFiles[1].path, repository / "docs/style.md");
    EXPECT_EQ(set.repositoryFiles[2].path, repository / "tests.md");
}

TEST(InstructionFileWalkTest, countsEveryFileAsTheRepositorysOwnWhenItIsTheRoot)
{
    const TemporaryFolder folder;
    const auto file = folder.write("home/.claude/CLAUDE.md", "Be brief.\n");
    const auto findings = std::make_shared<InstructionFileFindings>();
    InstructionFileWalk({.home = folder.path() / "home"}, "/", findings).run();
    const InstructionFileSet set = findings->set();
    ASSERT_FALSE(set.repositoryFiles.empty());
    EXPECT_EQ(set.repositoryFiles.back().path, file.native());
    EXPECT_TRUE(set.personalFiles.empty());
}

TEST(InstructionFileWalkTest, keepsFindingsByTierInOrder)
{
    InstructionFileFindings findings;
    const auto first = InstructionFileEstimate::fromPath("/b", 1);
    const auto second = InstructionFileEstimate::fromPath("/a", 2);
    findings.add(InstructionFileTier::repository, first);
    findings.add(InstructionFileTier::repository, second);
    findings.add(InstructionFileTier::inherited, second);
    findings.add(InstructionFileTier::personal, first);
    EXPECT_EQ(findings.set(), (InstructionFileSet{{first, second}, {second}, {first}, {}}));
}

TEST(InstructionFileWalkTest, listsUnreadablePathsAscendingAndOnce)
{
    InstructionFileFindings findings;
    for (const char *path : {"/b", "/a", "/B", "/b"})
        findings.addUnreadable(path);
    EXPECT_EQ(findings.set().unreadablePaths, (std::vector<std::string>{"/B", "/a", "/b"}));
}

TEST(InstructionFileWalkTest, beginsWithNoFindingsAndNotStopped)
{
    InstructionFileFindings findings;
    EXPECT_EQ(findings.set(), InstructionFileSet::empty);
    EXPECT_FALSE(findings.isStopped());
    findings.stop();
    EXPECT_TRUE(findings.isStopped());
}

TEST(InstructionFileWalkTest, returnsFindingsWhileAnotherThreadAdds)
{
    InstructionFileFindings findings;
    std::thread walker([&findings] {
        for (int number = 0; !findings.isStopped(); ++number) {
            findings.add(InstructionFileTier::repository,
                         InstructionFileEstimate::fromPath(std::to_string(number), number));
            findings.addUnreadable(std::to_string(number % 10));
        }
    });
    std::size_t count = 0;
    while (count < 100) {
        const std::vector<InstructionFileEstimate> files = findings.set().repositoryFiles;
        EXPECT_GE(files.size(), count);
        count = files.size();
        for (std::size_t index = 0; index < count; ++index)
            EXPECT_EQ(files[index].path, std::to_string(index));
    }
    findings.stop();
    walker.join();
}

} // namespace Loadwick
