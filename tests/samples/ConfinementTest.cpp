#include "samples/Confinement.h"

#include <cstdlib>
#include <map>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "probe/ProbeError.h"
#include "samples/TemporaryFolder.h"
#include "samples/ThrowAwayHome.h"

namespace Loadwick {

namespace {

/// A machine with a `claude` in every folder that is searched. Each leaves a mark when started.
class ConfinementTest : public testing::Test
{
protected:
    ConfinementTest()
    {
        const std::string script =
            "#!/bin/sh\necho started >>'" + (machine.path() / "started").string() + "'\n";
        machine.writeScript("home/.local/bin/claude", script);
        machine.writeScript("usr/local/bin/claude", script);
        machine.writeScript("path/claude", script);
        machine.write("home/.zprofile", "export PATH='" + folder("path") + "'\n");
        machine.write("home/.claude/settings.json", "{}");
        machine.write("work/projects/note", "");
        setenv("HOME", folder("home").c_str(), 1);
        setenv("PATH", (folder("path") + ":" + ordinaryPath).c_str(), 1);
        setenv("CLAUDE_CONFIG_DIR", folder("work").c_str(), 1);
        setenv("XDG_DATA_HOME", folder("home/.local/share").c_str(), 1);
        setenv("ZDOTDIR", folder("home").c_str(), 1);
        before = snapshot();
    }

    ~ConfinementTest() override { setenv("PATH", ordinaryPath.c_str(), 1); }

    std::string folder(const std::string &name) const { return (machine.path() / name).string(); }

    /// Every file of the machine with its bytes.
    std::map<std::string, std::string> snapshot() const
    {
        std::map<std::string, std::string> files;
        for (const auto &entry : std::filesystem::recursive_directory_iterator(machine.path()))
            files[entry.path().string()] = entry.is_regular_file() ? contentOf(entry.path()) : "";
        return files;
    }

    std::optional<ProbeError> scan(const ThrowAwayHome &home) const
    {
        try {
            ProbeRunner runner(Confinement::runnerSettings(home.path(), shutdown));
            static_cast<void>(runner.run(home.repository()));
        } catch (const ProbeError &error) {
            return error;
        }
        return std::nullopt;
    }

    std::string ordinaryPath = std::getenv("PATH");
    TemporaryFolder machine;
    std::map<std::string, std::string> before;
    std::shared_ptr<Shutdown> shutdown = std::make_shared<Shutdown>();
};

} // namespace

TEST_F(ConfinementTest, startsOnlyTheStandIn)
{
    const ThrowAwayHome home;
    home.standIn().play({.outcome = "transcript"});
    Confinement::pinEnvironment(home.path());
    EXPECT_EQ(scan(home), std::nullopt);
    EXPECT_EQ(home.standIn().runs().size(), 1u);
    EXPECT_EQ(snapshot(), before);
}

TEST_F(ConfinementTest, findsNoOtherClaudeWithoutTheStandIn)
{
    const ThrowAwayHome home;
    std::filesystem::remove(home.standIn().executable());
    Confinement::pinEnvironment(home.path());
    const std::optional<ProbeError> error = scan(home);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(*error, ProbeError::cliNotFound({home.standIn().executable().string(),
                                               "/opt/homebrew/bin/claude", "/usr/local/bin/claude",
                                               "zsh -lc 'command -v claude'"}));
    EXPECT_EQ(snapshot(), before);
}

TEST_F(ConfinementTest, rejectsLinksOutOfTheHome)
{
    const ThrowAwayHome home;
    std::filesystem::remove(home.standIn().executable());
    std::filesystem::create_symlink(machine.path() / "usr/local/bin/claude",
                                    home.standIn().executable());
    Confinement::pinEnvironment(home.path());
    EXPECT_TRUE(scan(home).has_value());
    EXPECT_EQ(snapshot(), before);
}

TEST_F(ConfinementTest, treatsNothingOutsideTheHomeAsExecutable)
{
    const ThrowAwayHome home;
    const auto lookup = Confinement::runnerSettings(home.path(), shutdown).lookup;
    EXPECT_TRUE(lookup.isExecutable(home.standIn().executable().string()));
    EXPECT_FALSE(lookup.isExecutable("/bin/sh"));
    EXPECT_FALSE(lookup.isExecutable(folder("usr/local/bin/claude")));
    EXPECT_FALSE(lookup.isExecutable(home.path().string() + "-beside/claude"));
    EXPECT_FALSE(lookup.isExecutable(home.path().string() + "/../" +
                                     machine.path().filename().string() + "/path/claude"));
    EXPECT_EQ(lookup.loginShellLookup(), std::nullopt);
}

TEST_F(ConfinementTest, forgetsTheFoldersOfTheUserWhoStartedIt)
{
    const ThrowAwayHome home;
    Confinement::pinEnvironment(home.path());
    const Environment environment = currentEnvironment();
    EXPECT_EQ(environment.at("HOME"), home.path().string());
    for (const char *name : {"CLAUDE_CONFIG_DIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "ZDOTDIR"})
        EXPECT_EQ(environment.count(name), 0u) << name;
}

TEST_F(ConfinementTest, keepsTheDisplaysKey)
{
    unsetenv("XAUTHORITY");
    machine.write("home/.Xauthority", "");
    const ThrowAwayHome home;
    Confinement::pinEnvironment(home.path());
    EXPECT_EQ(currentEnvironment().at("XAUTHORITY"), folder("home/.Xauthority"));
    unsetenv("XAUTHORITY");
}

} // namespace Loadwick
