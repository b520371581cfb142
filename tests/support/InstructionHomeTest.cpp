#include "support/InstructionHome.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(InstructionHomeTest, beginsWithAnEmptyRepository)
{
    const InstructionHome home;
    EXPECT_TRUE(std::filesystem::is_empty(home.root()));
    EXPECT_EQ(home.root(), home.home() / "code/shop");
    EXPECT_EQ(home.scanned(), InstructionFileSet::empty);
}

TEST(InstructionHomeTest, writesIntoTheRepository)
{
    const InstructionHome home;
    home.writeOwn("AGENTS.md", "text");
    home.folder.write("home/.claude/CLAUDE.md", "text");
    EXPECT_EQ(contentOf(home.root() / "AGENTS.md"), "text");
    EXPECT_EQ(home.ownFiles(), std::vector<std::string>{"AGENTS.md"});
    EXPECT_EQ(home.pathsOf(home.scanned().personalFiles),
              std::vector<std::string>{"home/.claude/CLAUDE.md"});
}

} // namespace Loadwick
