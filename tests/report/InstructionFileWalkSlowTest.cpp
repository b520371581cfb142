// Peak memory, which is meaningless under a sanitizer.
#include "report/InstructionFileWalk.h"

#include <string>

#include <gtest/gtest.h>

#include "samples/TemporaryFolder.h"
#include "support/ProcessMemory.h"

namespace Loadwick {

namespace {

/// Nearly 4 MB of imports, every one of another file.
std::string manyImports(std::string_view folder)
{
    std::string text;
    for (int number = 1'000'000; text.size() < 3'990'000; ++number)
        text.append("@").append(folder).append(std::to_string(number)).append("\n");
    return text;
}

} // namespace

TEST(InstructionFileWalkSlowTest, keepsNoImportsThatAreTooDeep)
{
    constexpr int fileCount = 5;
    const TemporaryFolder folder;
    std::string imports;
    for (int number = 0; number < fileCount; ++number) {
        const std::string name = "f" + std::to_string(number) + ".md";
        folder.write("repository/" + name, manyImports(number % 2 == 0 ? "" : "ж/🗂️/"));
        imports.append("@").append(name).append("\n");
    }
    folder.write("repository/CLAUDE.md", imports);
    const auto findings = std::make_shared<InstructionFileFindings>();
    const PeakMemory memory;
    InstructionFileWalk({.home = folder.path() / "home", .maxImportDepth = 1},
                        folder.path() / "repository", findings)
        .run();
    EXPECT_LT(memory.growthInBytes(), 4'000'000U);
    EXPECT_EQ(findings->set().repositoryFiles.size(), 1U + fileCount);
}

} // namespace Loadwick
