#include "process/ProcessSpawn.h"

#include <csignal>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "support/HostileChild.h"

namespace Loadwick {

namespace {

// What a child says about itself, one line after the other.
std::string described(ProbeRunner::Launch launch)
{
    launch.timeoutSeconds = 30;
    return ProbeRunner::execute(launch).standardOutput;
}

std::string lineOf(const std::string &description, const std::string &start)
{
    const std::size_t begin = description.find(start);
    if (begin == std::string::npos)
        return "no line " + start;
    return description.substr(begin, description.find('\n', begin) - begin);
}

} // namespace

TEST(ProcessSpawnTest, givesTheChildASessionOfItsOwnWithoutATerminal)
{
    const std::string description = described(hostileLaunch({"describe"}));
    EXPECT_EQ(lineOf(description, "leads"), "leads session and group: yes");
    EXPECT_EQ(lineOf(description, "terminal"), "terminal: no");
}

TEST(ProcessSpawnTest, givesTheChildTheNullDeviceForInput)
{
    EXPECT_EQ(lineOf(described(hostileLaunch({"describe"})), "input"), "input bytes: 0");
}

TEST(ProcessSpawnTest, passesNoOtherDescriptorOn)
{
    const FileDescriptor leaky(open("/dev/null", O_RDONLY));
    const FileDescriptor high(fcntl(leaky.number(), F_DUPFD, 300));
    ASSERT_TRUE(high.isOpen());
    EXPECT_EQ(lineOf(described(hostileLaunch({"describe"})), "descriptors"), "descriptors: 0 1 2");
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
        description = described(hostileLaunch({"describe"}));
    }).join();
    std::signal(SIGPIPE, previous);
    std::signal(SIGHUP, previousHangUp);
    EXPECT_EQ(lineOf(description, "blocked"), "blocked:");
    EXPECT_EQ(lineOf(description, "dispositions"), "dispositions:");
}

TEST(ProcessSpawnTest, startsTheChildInItsFolder)
{
    ProbeRunner::Launch launch = hostileLaunch({"describe"});
    launch.repository = "/usr/bin";
    EXPECT_EQ(lineOf(described(launch), "folder"), "folder: /usr/bin");
}

TEST(ProcessSpawnTest, looksForARelativeExecutableInItsOwnFolderNotInTheChilds)
{
    ProbeRunner::Launch launch = hostileLaunch({"describe"});
    launch.cli = std::filesystem::relative(hostileChildPath()).string();
    launch.repository = "/usr/bin";
    EXPECT_EQ(lineOf(described(launch), "folder"), "folder: /usr/bin");
}

TEST(ProcessSpawnTest, passesArgumentsOnAsTheyAre)
{
    EXPECT_EQ(described(hostileLaunch({"arguments", "", "two words", "*\n\xFF"})), "");
    EXPECT_EQ(described(hostileLaunch({"arguments", "", "two words", "*$HOME"})),
              "\ntwo words\n*$HOME\n");
}

TEST(ProcessSpawnTest, givesTheChildExactlyItsEnvironment)
{
    ProbeRunner::Launch launch = hostileLaunch({"environment"});
    EXPECT_EQ(described(launch), "");
    launch.environment = {{"A", "1"}, {"EMPTY", ""}};
    EXPECT_EQ(described(launch), "A=1\nEMPTY=\n");
}

} // namespace Loadwick
