#include "process/ProcessTermination.h"

#include <chrono>
#include <csignal>
#include <thread>

namespace Loadwick::ProcessTermination {

void terminateThenKill(const ChildProcess &child, double graceSeconds)
{
    if (!child.isRunning())
        return;
    child.signal(SIGTERM);
    if (!child.waitUntil(deadlineAfter(graceSeconds)))
        child.signal(SIGKILL);
}

void sweepGroup(const ChildProcess &child)
{
    child.signalGroup(SIGTERM);
    std::this_thread::sleep_for(std::chrono::duration<double>(sweepGraceSeconds));
    child.signalGroup(SIGKILL);
}

} // namespace Loadwick::ProcessTermination
