#include "probe/ProbeEnvironment.h"

#include <gtest/gtest.h>

namespace Loadwick {

using ProbeEnvironment::childEnvironment;

TEST(ProbeEnvironmentTest, dropsKeysTokensAndEndpoints)
{
    const Environment parent{{"CLAUDECODE", "1"},
                             {"ANTHROPIC_BASE_URL", "https://example.org"},
                             {"ANTHROPIC_API_KEY", "key"},
                             {"ANTHROPIC_AUTH_TOKEN", "token"}};
    EXPECT_EQ(childEnvironment(parent, "/work"), Environment{});
}

TEST(ProbeEnvironmentTest, dropsTheWholeFamilyButTheSignInToken)
{
    const Environment parent{{"CLAUDE_CODE_ENTRYPOINT", "cli"},
                             {"CLAUDE_CODE_", ""},
                             {"CLAUDE_CODE_OAUTH_TOKEN", "kept"},
                             {"CLAUDE_CODE_OAUTH_TOKEN_2", "dropped"}};
    EXPECT_EQ(childEnvironment(parent, "/work"),
              (Environment{{"CLAUDE_CODE_OAUTH_TOKEN", "kept"}}));
}

TEST(ProbeEnvironmentTest, keepsEverythingElseUnchanged)
{
    const Environment parent{{"PATH", "/bin"},
                             {"HOME", "/home/me"},
                             {"EMPTY", ""},
                             {"claudecode", "lower case"},
                             {"CLAUDECODE_X", "another name"},
                             {"MY_ANTHROPIC_API_KEY", "another name"},
                             {"BYTES", "\xFF\n"}};
    EXPECT_EQ(childEnvironment(parent, "/work"), parent);
}

TEST(ProbeEnvironmentTest, makesARelativeConfigurationFolderAbsolute)
{
    const Environment parent{{"CLAUDE_CONFIG_DIR", " ./settings/../claude "}};
    EXPECT_EQ(childEnvironment(parent, "/elsewhere/here").at("CLAUDE_CONFIG_DIR"),
              "/elsewhere/here/claude");
}

TEST(ProbeEnvironmentTest, leavesOutABlankConfigurationFolder)
{
    for (const char *const blank : {"", " \t", "\n\xC2\xA0"})
        EXPECT_EQ(childEnvironment({{"CLAUDE_CONFIG_DIR", blank}}, "/work"), Environment{})
            << blank;
}

TEST(ProbeEnvironmentTest, namesWhatReachesTheChild)
{
    EXPECT_EQ(ProbeEnvironment::preservedKeys,
              (std::array<std::string_view, 2>{"CLAUDE_CONFIG_DIR", "CLAUDE_CODE_OAUTH_TOKEN"}));
}

TEST(ProbeEnvironmentTest, addsNoConfigurationFolder)
{
    EXPECT_EQ(childEnvironment({}, "/work"), Environment{});
}

} // namespace Loadwick
