// A child process that misbehaves on request: its first argument says how. No child lives longer
// than half a minute.

#include <algorithm>
#include <csignal>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <unistd.h>

#include "support/hostile/ChildOutput.h"

namespace Hostile {

namespace {

[[noreturn]] void liveOn()
{
    while (true)
        pause();
}

void sleepMilliseconds(const std::string &text)
{
    usleep(static_cast<useconds_t>(std::stoul(text)) * 1000U);
}

int print(const Arguments &arguments)
{
    writeAll(STDOUT_FILENO, arguments.at(0));
    writeAll(STDERR_FILENO, arguments.at(1));
    return std::stoi(arguments.at(2));
}

int flood(const Arguments &arguments)
{
    const std::string chunk(64 * 1024, 'x');
    for (std::size_t left = std::stoul(arguments.at(0)); left > 0;) {
        const std::size_t count = std::min(left, chunk.size());
        writeAll(STDOUT_FILENO, std::string_view(chunk).substr(0, count));
        writeAll(STDERR_FILENO, std::string_view(chunk).substr(0, count));
        left -= count;
    }
    return 0;
}

int ignoreTermination(const Arguments &)
{
    std::signal(SIGTERM, SIG_IGN);
    say("ready");
    liveOn();
}

int trapTermination(const Arguments &arguments)
{
    static int status = 0;
    status = std::stoi(arguments.at(0));
    std::signal(SIGTERM, [](int) { _exit(status); });
    say("ready");
    liveOn();
}

// Leaves a process behind that holds both streams and prints again before it ends.
int leaveGrandchild(const Arguments &arguments)
{
    say("early");
    if (fork() == 0) {
        alarm(30);
        sleepMilliseconds(arguments.at(0));
        say("late");
        _exit(0);
    }
    return 0;
}

int leaveDaemon(const Arguments &arguments)
{
    if (fork() == 0) {
        setsid();
        if (fork() == 0) {
            alarm(30);
            sleepMilliseconds(arguments.at(0));
            _exit(0);
        }
        _exit(0);
    }
    say("gone");
    return 0;
}

// Leaves a process behind in its group that holds no stream, and creates a file if it survives.
int leaveQuietGrandchild(const Arguments &arguments)
{
    if (fork() == 0) {
        alarm(30);
        close(STDOUT_FILENO);
        close(STDERR_FILENO);
        sleepMilliseconds(arguments.at(0));
        close(open(arguments.at(1).c_str(), O_CREAT | O_WRONLY, 0600));
        _exit(0);
    }
    if (arguments.size() > 2)
        liveOn();
    return 0;
}

int stopItself(const Arguments &)
{
    raise(SIGSTOP);
    return 0;
}

int printHalfACharacter(const Arguments &)
{
    writeAll(STDOUT_FILENO, "half \xE2\x82");
    writeAll(STDERR_FILENO, "whole \xE2\x82\xAC");
    return 0;
}

int closeOutput(const Arguments &)
{
    writeAll(STDOUT_FILENO, "last words");
    close(STDOUT_FILENO);
    close(STDERR_FILENO);
    liveOn();
}

// Has a tracer that holds it while it is dying, so that even SIGKILL does not end it.
int surviveKill(const Arguments &arguments)
{
    int attached[2];
    if (pipe(attached) != 0)
        return 9;
    const pid_t victim = getpid();
    prctl(PR_SET_PTRACER, PR_SET_PTRACER_ANY, 0, 0, 0); // else a plain user's child may not
    const pid_t tracer = fork();
    if (tracer == 0) {
        setsid();
        alarm(30);
        close(STDOUT_FILENO);
        close(STDERR_FILENO);
        if (ptrace(PTRACE_SEIZE, victim, nullptr, PTRACE_O_TRACEEXIT) == 0)
            writeAll(attached[1], "y");
        close(attached[1]);
        sleepMilliseconds(arguments.at(0));
        _exit(0);
    }
    close(attached[1]);
    char answer = 'n';
    if (read(attached[0], &answer, 1) != 1)
        return 9;
    say("ready");
    liveOn();
}

const std::map<std::string, int (*)(const Arguments &)> verbs{
    {"arguments", printArguments},
    {"close-output", closeOutput},
    {"daemon", leaveDaemon},
    {"describe", describe},
    {"environment", printEnvironment},
    {"flood", flood},
    {"grandchild", leaveGrandchild},
    {"half", printHalfACharacter},
    {"ignore-term", ignoreTermination},
    {"print", print},
    {"quiet-grandchild", leaveQuietGrandchild},
    {"stop", stopItself},
    {"survive-kill", surviveKill},
    {"trap-term", trapTermination},
};

} // namespace

} // namespace Hostile

int main(int count, char **texts)
{
    const Hostile::Arguments all(texts, texts + count);
    if (all.size() < 2 || Hostile::verbs.find(all[1]) == Hostile::verbs.end())
        return 2;
    alarm(30);
    return Hostile::verbs.at(all[1])(Hostile::Arguments(all.begin() + 2, all.end()));
}
