#include "report/InstructionFileFindings.h"

#include <thread>

#include <gtest/gtest.h>

namespace Loadwick {

TEST(InstructionFileFindingsTest, keepsFilesByTierInOrder)
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

TEST(InstructionFileFindingsTest, listsUnreadablePathsAscendingAndOnce)
{
    InstructionFileFindings findings;
    for (const char *path : {"/b", "/a", "/B", "/b"})
        findings.addUnreadable(path);
    EXPECT_EQ(findings.set().unreadablePaths, (std::vector<std::string>{"/B", "/a", "/b"}));
}

TEST(InstructionFileFindingsTest, isEmptyAtFirstAndNotStopped)
{
    InstructionFileFindings findings;
    EXPECT_EQ(findings.set(), InstructionFileSet::empty);
    EXPECT_FALSE(findings.isStopped());
    findings.stop();
    EXPECT_TRUE(findings.isStopped());
}

TEST(InstructionFileFindingsTest, canBeReadWhileAnotherThreadAdds)
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
