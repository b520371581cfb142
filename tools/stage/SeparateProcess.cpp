#include "stage/SeparateProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>

#include <sys/wait.h>
#include <unistd.h>

#include "text/Fatal.h"

#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace Loadwick {

namespace {

constexpr std::array<int, 3> endings{SIGINT, SIGTERM, SIGHUP};

volatile sig_atomic_t childID = 0; // read by the signal handler

void forward(int signal)
{
    kill(static_cast<pid_t>(childID), signal);
}

sigset_t endingSet()
{
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : endings)
        sigaddset(&set, signal);
    return set;
}

void endWithTheParent()
{
#ifdef __linux__
    prctl(PR_SET_PDEATHSIG, SIGTERM);
#endif
}

[[noreturn]] void runChild(const std::function<int()> &program, const sigset_t &previousMask)
{
    endWithTheParent();
    sigprocmask(SIG_SETMASK, &previousMask, nullptr);
    const int status = program();
    std::fflush(nullptr);
    _exit(status);
}

void forwardEndings(pid_t child, const sigset_t &previousMask)
{
    childID = child;
    struct sigaction action = {};
    action.sa_handler = forward;
    for (const int signal : endings)
        sigaction(signal, &action, nullptr);
    sigprocmask(SIG_SETMASK, &previousMask, nullptr);
}

int exitStatus(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) < 0)
        if (errno != EINTR)
            return 1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

} // namespace

int runInSeparateProcess(const std::function<int()> &program)
{
    // Blocked around the fork, so that no signal comes before it can be forwarded.
    const sigset_t blocked = endingSet();
    sigset_t previousMask;
    sigprocmask(SIG_BLOCK, &blocked, &previousMask);
    const pid_t child = fork();
    if (child < 0)
        fatalError("no child process can be started");
    if (child == 0)
        runChild(program, previousMask);
    forwardEndings(child, previousMask);
    return exitStatus(child);
}

} // namespace Loadwick
