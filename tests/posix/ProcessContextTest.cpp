#include "posix/ProcessContext.h"

#include <cstdlib>

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include "samples/TemporaryFolder.h"
#include "support/EnvironmentSwap.h"

namespace Loadwick {

TEST(ProcessContextTest, readsTheEnvironmentAsBytes)
{
    const EnvironmentSwap swap({"A=1", "EMPTY=", "WITH=a=b", "BYTES=\xFF"});
    EXPECT_EQ(currentEnvironment(),
              (Environment{{"A", "1"}, {"EMPTY", ""}, {"WITH", "a=b"}, {"BYTES", "\xFF"}}));
}

TEST(ProcessContextTest, takesTheFirstOfEqualNames)
{
    const EnvironmentSwap swap({"A=1", "A=2"});
    EXPECT_EQ(currentEnvironment(), (Environment{{"A", "1"}}));
}

TEST(ProcessContextTest, leavesOutEntriesWithoutName)
{
    const EnvironmentSwap swap({"=x", "plain", "A=1"});
    EXPECT_EQ(currentEnvironment(), (Environment{{"A", "1"}}));
}

TEST(ProcessContextTest, hasNoVariablesWithoutEnvironment)
{
    char **const before = environ;
    environ = nullptr;
    const Environment environment = currentEnvironment();
    environ = before;
    EXPECT_TRUE(environment.empty());
}

TEST(ProcessContextTest, knowsTheCurrentFolder)
{
    EXPECT_EQ(currentFolder(), std::filesystem::current_path());
}

TEST(ProcessContextTest, fallsBackToTheRootWhenTheCurrentFolderIsGone)
{
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::path gone;
    {
        const TemporaryFolder folder;
        std::filesystem::current_path(folder.path());
    }
    gone = currentFolder();
    std::filesystem::current_path(before);
    EXPECT_EQ(gone, "/");
}

TEST(ProcessContextTest, takesHomeFromTheEnvironment)
{
    EXPECT_EQ(homeFolder({{"HOME", "/some/home"}}), "/some/home");
    EXPECT_EQ(homeFolder({{"HOME", "/bytes\xFF"}}), "/bytes\xFF");
}

TEST(ProcessContextTest, asksThePasswordDatabaseWhenHomeIsUnsetOrEmpty)
{
    const passwd *const entry = getpwuid(getuid());
    const std::string recorded = entry != nullptr && *entry->pw_dir != '\0' ? entry->pw_dir : "/";
    EXPECT_EQ(homeFolder({}), recorded);
    EXPECT_EQ(homeFolder({{"HOME", ""}}), recorded);
}

} // namespace Loadwick
