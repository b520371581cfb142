#include "support/FakeInstructionScanner.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(FakeInstructionScannerTest, givesNoFilesAtFirstAndRemembersTheFolders)
{
    FakeInstructionScanner scanner;
    EXPECT_EQ(scanner.scan("/a"), InstructionFileSet());
    EXPECT_EQ(scanner.scans(), std::vector<std::filesystem::path>{"/a"});
}

TEST(FakeInstructionScannerTest, givesWhatItIsTold)
{
    FakeInstructionScanner scanner;
    InstructionFileSet files;
    files.unreadablePaths = {"/a/CLAUDE.md"};
    scanner.answer = [files] { return files; };
    EXPECT_EQ(scanner.scan("/a"), files);
}

} // namespace Loadwick
