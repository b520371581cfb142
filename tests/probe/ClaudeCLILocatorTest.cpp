#include "probe/ClaudeCLILocator.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "probe/ProbeError.h"
#include "samples/TemporaryFolder.h"
#include "support/ProcessCensus.h"
#include "support/Stopwatch.h"

namespace Loadwick {

using namespace ClaudeCLILocator;
using Paths = std::vector<std::string>;

namespace {

// A machine on which one path is executable and the login shell gives one answer.
struct World
{
    std::string executable;
    std::optional<std::string> shellAnswer{};
    Paths tested{};
    int shellCalls = 0;

    Lookup lookup()
    {
        return {[this](const std::string &path) {
                    tested.push_back(path);
                    return path == executable;
                },
                [this] {
                    ++shellCalls;
                    return shellAnswer;
                }};
    }
};

Paths searchedWhenNotFound(const std::optional<std::string> &cliOverride, World world)
{
    try {
        ADD_FAILURE() << "found " << resolve(cliOverride, "/home/me", world.lookup());
    } catch (const ProbeError &error) {
        if (const auto *missing = std::get_if<ProbeError::CliNotFound>(&error.value()))
            return missing->searched;
    }
    return {};
}

std::optional<std::string> answerOf(std::string_view script, double timeoutSeconds = 10)
{
    const TemporaryFolder folder;
    const std::string shell = folder.writeScript("shell", script).string();
    return loginShellPath(shell, timeoutSeconds, nullptr);
}

} // namespace

TEST(ClaudeCLILocatorTest, triesTheFixedPathsInOrder)
{
    EXPECT_EQ(
        candidates(std::nullopt, "/home/me"),
        (Paths{"/home/me/.local/bin/claude", "/opt/homebrew/bin/claude", "/usr/local/bin/claude"}));
}

TEST(ClaudeCLILocatorTest, joinsTheHomeFolderUnchanged)
{
    EXPECT_EQ(candidates(std::nullopt, "/home/me/").front(), "/home/me//.local/bin/claude");
    EXPECT_EQ(candidates(std::nullopt, "").front(), "/.local/bin/claude");
}

TEST(ClaudeCLILocatorTest, ignoresABlankOverride)
{
    EXPECT_EQ(candidates(" \t ", "/home/me"), candidates(std::nullopt, "/home/me"));
    EXPECT_EQ(candidates("", "/home/me"), candidates(std::nullopt, "/home/me"));
}

TEST(ClaudeCLILocatorTest, triesAnOverrideFirstWithItsSpaces)
{
    EXPECT_EQ(candidates(" /opt/claude ", "/home/me").front(), " /opt/claude ");
    EXPECT_EQ(candidates(" /opt/claude ", "/home/me").size(), 4U);
    EXPECT_EQ(candidates("\n", "/home/me").front(), "\n");
}

TEST(ClaudeCLILocatorTest, takesTheFirstExecutableCandidate)
{
    World world{.executable = "/opt/homebrew/bin/claude", .shellAnswer = "/other"};
    EXPECT_EQ(resolve(std::nullopt, "/home/me", world.lookup()), "/opt/homebrew/bin/claude");
    EXPECT_EQ(world.tested, (Paths{"/home/me/.local/bin/claude", "/opt/homebrew/bin/claude"}));
    EXPECT_EQ(world.shellCalls, 0);
}

TEST(ClaudeCLILocatorTest, asksTheLoginShellLast)
{
    World world{.executable = "/nix/claude", .shellAnswer = "/nix/claude"};
    EXPECT_EQ(resolve(std::nullopt, "/home/me", world.lookup()), "/nix/claude");
    EXPECT_EQ(world.tested.size(), 4U);
    EXPECT_EQ(world.shellCalls, 1);
}

TEST(ClaudeCLILocatorTest, trimsBlankLinesAroundTheShellsAnswer)
{
    World world{.executable = "/nix/claude", .shellAnswer = "\n\r\n  /nix/claude \n\n"};
    EXPECT_EQ(resolve(std::nullopt, "/home/me", world.lookup()), "/nix/claude");
}

TEST(ClaudeCLILocatorTest, ignoresAnAnswerThatIsNoAbsolutePath)
{
    for (const char *const answer : {"claude", "./claude", "bin/claude", "alias claude=/bin/x"})
        EXPECT_EQ(searchedWhenNotFound(std::nullopt, {.executable = answer, .shellAnswer = answer}),
                  searchedWhenNotFound(std::nullopt, {}))
            << answer;
}

TEST(ClaudeCLILocatorTest, namesEverythingItTriedWhenNothingIsFound)
{
    const Paths fixed{"/home/me/.local/bin/claude", "/opt/homebrew/bin/claude",
                      "/usr/local/bin/claude", "zsh -lc 'command -v claude'"};
    EXPECT_EQ(searchedWhenNotFound(std::nullopt, {}), fixed);
    EXPECT_EQ(searchedWhenNotFound(std::nullopt, {.executable = "", .shellAnswer = " \n"}), fixed);
    EXPECT_EQ(searchedWhenNotFound(std::nullopt, {.executable = "/x", .shellAnswer = "/y"}), fixed);
    EXPECT_EQ(searchedWhenNotFound("/mine", {}).front(), "/mine");
    EXPECT_EQ(searchedWhenNotFound("/mine", {}).size(), 5U);
}

TEST(ClaudeCLILocatorTest, namesIllFormedPathsRepaired)
{
    EXPECT_EQ(searchedWhenNotFound("/odd\xFF/claude", {}).front(), "/odd\xEF\xBF\xBD/claude");
}

TEST(ClaudeCLILocatorTest, acceptsARegularExecutableFile)
{
    const TemporaryFolder folder;
    const std::string script = folder.writeScript("claude", "#!/bin/sh\n").string();
    EXPECT_TRUE(isExecutableFile(script));
    std::filesystem::create_symlink(script, folder.path() / "link");
    EXPECT_TRUE(isExecutableFile(folder.path() / "link"));
}

TEST(ClaudeCLILocatorTest, rejectsEverythingElseAsExecutable)
{
    const TemporaryFolder folder;
    std::filesystem::create_symlink("self", folder.path() / "self");
    ASSERT_EQ(mkfifo((folder.path() / "fifo").c_str(), 0777), 0);
    EXPECT_FALSE(isExecutableFile(folder.write("plain", "text")));
    EXPECT_FALSE(isExecutableFile(folder.path()));
    EXPECT_FALSE(isExecutableFile(folder.path() / "self"));
    EXPECT_FALSE(isExecutableFile(folder.path() / "fifo"));
    EXPECT_FALSE(isExecutableFile(folder.path() / "gone"));
    EXPECT_FALSE(isExecutableFile(""));
    EXPECT_FALSE(isExecutableFile(std::string("/bin/sh\0x", 9)));
}

TEST(ClaudeCLILocatorTest, startsTheShellAsALoginShell)
{
    EXPECT_EQ(answerOf("#!/bin/sh\nprintf '%s|' \"$@\"\n"), "-lc|command -v claude|");
}

TEST(ClaudeCLILocatorTest, returnsTheShellsUntrimmedStandardOutput)
{
    EXPECT_EQ(answerOf("#!/bin/sh\necho noise >&2\nprintf '\\n/bin/claude\\n\\n'\n"),
              "\n/bin/claude\n\n");
}

TEST(ClaudeCLILocatorTest, ignoresTheAnswerOfAFailingShell)
{
    EXPECT_EQ(answerOf("#!/bin/sh\necho /bin/claude\nexit 1\n"), std::nullopt);
    EXPECT_EQ(answerOf("#!/bin/sh\necho /bin/claude\nkill -9 $$\n"), std::nullopt);
    EXPECT_EQ(loginShellPath("/nowhere/zsh", 10, nullptr), std::nullopt);
}

TEST(ClaudeCLILocatorTest, ignoresAnAnswerThatIsNotUtf8)
{
    EXPECT_EQ(answerOf("#!/bin/sh\nprintf '/bin/\\377'\n"), std::nullopt);
}

TEST(ClaudeCLILocatorTest, acceptsAnAnswerUpToItsLimit)
{
    EXPECT_EQ(answerOf("#!/bin/sh\nhead -c 65536 /dev/zero\n")->size(), 65'536U);
    EXPECT_EQ(answerOf("#!/bin/sh\nhead -c 65537 /dev/zero\n"), std::nullopt);
}

TEST(ClaudeCLILocatorTest, stopsAShellThatHangs)
{
    const Stopwatch watch;
    EXPECT_EQ(answerOf("#!/bin/sh\necho /bin/claude\nexec sleep 30\n", 0.1), std::nullopt);
    EXPECT_GE(watch.seconds(), 0.1);
    EXPECT_LT(watch.seconds(), 10);
}

TEST(ClaudeCLILocatorTest, ignoresTheAnswerOfAShellThatExitsTooLate)
{
    EXPECT_EQ(answerOf("#!/bin/sh\necho /bin/claude\ntrap 'exit 0' TERM\n"
                       "while :; do sleep 0.02; done\n",
                       0.3),
              std::nullopt);
}

TEST(ClaudeCLILocatorTest, acceptsTheAnswerOfAShellThatLeavesADaemon)
{
    const ProcessCensus before = ProcessCensus::now();
    const Stopwatch watch;
    EXPECT_EQ(answerOf("#!/bin/sh\necho /bin/claude\nsleep 4 &\nexit 0\n"), "/bin/claude\n");
    EXPECT_GE(watch.seconds(), 1.0);
    EXPECT_LT(watch.seconds(), 3.9);
    EXPECT_TRUE(eventually([&] { return ProcessCensus::now().isWithin(before); }));
}

} // namespace Loadwick
