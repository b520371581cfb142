#include "process/ProcessSpawn.h"

#include <csignal>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "process/ChildSupervision.h"
#include "support/HostileChild.h"

namespace Loadwick {

namespace {

ChildCommand commandInRoot(std::vector<std::string> arguments)
{
    return {hostileChildPath(), std::move(arguments), {}, "/"};
}

// The child's description of itself, in lines.
std::string described(ChildCommand command)
{
    return ChildSupervision::run({.command = std::move(command),
                                  .limits = {.timeoutSeconds = 30,
                                             .killGraceSeconds = 0.2,
                                             .readerGraceSeconds = 5,
                                             .captureLimit = 100'000},
                                  .capture = ChildSupervision::Capture::bothStreams,
                                  .shutdown = nullptr})
        .standardOutput.value();
}

std::string lineOf(const std::string &description, const std::string &start)
{
    const std::size_t begin = description.find(start);
    if (begin == std::string::npos)
        return "no line " + start;
    return description.substr(begin, description.find('\n', begin) - begin);
}

} // namespace

TEST(ProcessSpawnTest, startsTheChildInItsOwnSessionWithoutATerminal)
{
    const std::string description = described(commandInRoot({"describe"}));
    EXPECT_EQ(lineOf(description, "leads"), "leads session and group: yes");
    EXPECT_EQ(lineOf(description, "terminal"), "terminal: no");
}

TEST(ProcessSpawnTest, startsTheChildWithTheNullDeviceForInput)
{
    EXPECT_EQ(lineOf(described(commandInRoot({"describe"})), "input"), "input bytes: 0");
}

TEST(ProcessSpawnTest, passesOnNoOtherDescriptor)
{
    const FileDescriptor leaky(open("/dev/null", O_RDONLY));
    const FileDescriptor high(fcntl(leaky.number(), F_DUPFD, 300));
    ASSERT_TRUE(high.isOpen());
    EXPECT_EQ(lineOf(described(commandInRoot({"describe"})), "descriptors"), "descriptors: 0 1 2");
}

TEST(ProcessSpawnTest, startsTheChildWithDefaultSignals)
{
    const auto previous = std::signal(SIGPIPE, SIG_IGN);
    const auto previousHangUp = std::signal(SIGHUP, SIG_IGN);
    std::string description;
    // A thread of its own, so that the mask ends with it.
    std::thread([&] {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_BLOCK, &all, nullptr);
        description = described(commandInRoot({"describe"}));
    }).join();
    std::signal(SIGPIPE, previous);
    std::signal(SIGHUP, previousHangUp);
    EXPECT_EQ(lineOf(description, "blocked"), "blocked:");
    EXPECT_EQ(lineOf(description, "dispositions"), "dispositions:");
}

TEST(ProcessSpawnTest, startsTheChildInItsFolder)
{
    ChildCommand command = commandInRoot({"describe"});
    command.workingFolder = "/usr/bin";
    EXPECT_EQ(lineOf(described(command), "folder"), "folder: /usr/bin");
}

TEST(ProcessSpawnTest, resolvesARelativeExecutableAgainstItsOwnFolder)
{
    ChildCommand command = commandInRoot({"describe"});
    command.executable = std::filesystem::relative(hostileChildPath()).string();
    command.workingFolder = "/usr/bin";
    EXPECT_EQ(lineOf(described(command), "folder"), "folder: /usr/bin");
}

TEST(ProcessSpawnTest, passesArgumentsUnchanged)
{
    EXPECT_EQ(described(commandInRoot({"arguments", "", "two words", "*$HOME", "\n\xFF"})),
              "\ntwo words\n*$HOME\n\n\xFF\n");
}

TEST(ProcessSpawnTest, startsTheChildWithExactlyItsEnvironment)
{
    ChildCommand command = commandInRoot({"environment"});
    EXPECT_EQ(described(command), "");
    command.environment = {{"A", "1"}, {"EMPTY", ""}};
    EXPECT_EQ(described(command), "A=1\nEMPTY=\n");
}

} // namespace Loadwick
