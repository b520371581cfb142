#include "support/hostile/ChildOutput.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <functional>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace Hostile {

namespace {

std::string openDescriptors()
{
    std::string numbers;
    DIR *const folder = opendir("/proc/self/fd");
    while (const dirent *const entry = readdir(folder))
        if (entry->d_name[0] != '.' && std::stoi(entry->d_name) != dirfd(folder))
            numbers += std::string(" ") + entry->d_name;
    closedir(folder);
    return numbers;
}

std::string signalsThat(const std::function<bool(int)> &holds)
{
    std::string numbers;
    for (int number = 1; number < NSIG; ++number)
        if (holds(number))
            numbers += " " + std::to_string(number);
    return numbers;
}

bool isBlocked(int number)
{
    sigset_t blocked;
    sigprocmask(SIG_BLOCK, nullptr, &blocked);
    return sigismember(&blocked, number) == 1;
}

bool hasOwnDisposition(int number)
{
    struct sigaction action = {};
    return sigaction(number, nullptr, &action) == 0 && action.sa_handler != SIG_DFL;
}

} // namespace

void writeAll(int descriptor, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t count = write(descriptor, text.data(), text.size());
        if (count < 0 && errno != EINTR)
            _exit(9);
        text.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
}

void say(const std::string &line)
{
    writeAll(STDOUT_FILENO, line + "\n");
}

int describe(const Arguments &)
{
    const bool leads = getsid(0) == getpid() && getpgrp() == getpid();
    const bool hasTerminal = open("/dev/tty", O_RDWR) >= 0;
    char byte = 0;
    char folder[4096];
    say(std::string("leads session and group: ") + (leads ? "yes" : "no"));
    say(std::string("terminal: ") + (hasTerminal ? "yes" : "no"));
    say("descriptors:" + openDescriptors());
    say("blocked:" + signalsThat(isBlocked));
    say("dispositions:" + signalsThat(hasOwnDisposition));
    say("input bytes: " + std::to_string(read(STDIN_FILENO, &byte, 1)));
    say(std::string("folder: ") + getcwd(folder, sizeof folder));
    return 0;
}

int printEnvironment(const Arguments &)
{
    for (char **entry = environ; *entry != nullptr; ++entry)
        say(*entry);
    return 0;
}

int printArguments(const Arguments &arguments)
{
    for (const std::string &argument : arguments)
        say(argument);
    return 0;
}

} // namespace Hostile
