#include "probe/ProcessContext.h"

#include <cstdlib>

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include "support/TemporaryFolder.h"

namespace Loadwick {

namespace {

/// Puts another environment in this one's place for one test.
class EnvironmentSwap
{
public:
    explicit EnvironmentSwap(std::vector<std::string> entries)
        : m_entries(std::move(entries)), m_before(environ)
    {
        for (std::string &entry : m_entries)
            m_pointers.push_back(entry.data());
        m_pointers.push_back(nullptr);
        environ = m_pointers.data();
    }
    ~EnvironmentSwap() { environ = m_before; }
    EnvironmentSwap(const EnvironmentSwap &) = delete;
    EnvironmentSwap &operator=(const EnvironmentSwap &) = delete;

private:
    std::vector<std::string> m_entries;
    std::vector<char *> m_pointers;
    char **m_before;
};

} // namespace

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
