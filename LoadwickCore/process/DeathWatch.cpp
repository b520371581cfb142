#include "process/DeathWatch.h"

#include <cerrno>
#include <csignal>
#include <exception>
#include <string>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "process/ProcessSpawn.h"

namespace Loadwick {

namespace {

// Reads "+ GROUP" and "- GROUP". An ended group has no process to signal.
constexpr auto script = R"(
groups=
while read -r sign group; do
    others=
    for listed in $groups; do
        [ "$listed" = "$group" ] || others="$others $listed"
    done
    groups=$others
    [ "$sign" = - ] || groups="$groups $group"
done
[ -n "$groups" ] || exit 0
for group in $groups; do kill -TERM "-$group"; done
for second in $(seq "$1"); do
    sleep 1
    for group in $groups; do kill -0 "-$group" && continue 2; done
    exit 0
done
for group in $groups; do kill -KILL "-$group"; done
)";

} // namespace

DeathWatch::~DeathWatch()
{
    if (m_shell <= 0)
        return;
    kill(m_shell, SIGKILL);
    // rarely taken: a signal arrives during this call
    while (waitpid(m_shell, nullptr, 0) < 0 && errno == EINTR) {
    }
}

void DeathWatch::prepare() noexcept
{
    try {
        if (m_shell == 0)
            start();
    } catch (const std::exception &) { // no shell, descriptor, process or memory
    }
}

void DeathWatch::add(pid_t group) noexcept
{
    tell('+', group);
}

void DeathWatch::remove(pid_t group) noexcept
{
    tell('-', group);
}

// The shell's end of the pipe stays open here too: writing to a shell that has ended is then no
// SIGPIPE.
void DeathWatch::start()
{
    m_pipe = Pipe::open();
    fcntl(m_pipe.writeEnd.number(), F_SETFL, O_NONBLOCK);
    m_shell = spawnSessionLeader({.executable = "/bin/sh",
                                  .arguments = {"-c", script, "sh", std::to_string(m_graceSeconds)},
                                  .environment = {},
                                  .workingFolder = "/"},
                                 {.standardInput = m_pipe.readEnd.number()});
}

void DeathWatch::tell(char sign, pid_t group) noexcept
{
    // "-1" and "-0" would name every process, and our own group.
    if (m_shell <= 0 || group <= 1)
        return;
    const std::string line = std::string{sign, ' '} + std::to_string(group) + '\n';
    [[maybe_unused]] const ssize_t written =
        write(m_pipe.writeEnd.number(), line.data(), line.size());
}

} // namespace Loadwick
