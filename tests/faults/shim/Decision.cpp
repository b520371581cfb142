#include "faults/shim/Decision.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Faults {

namespace {

// Called from any thread at any time; the plan changes only while none of them is working.
Plan thePlan;
std::atomic<bool> isArmed = false;
std::array<std::atomic<long>, callKinds> matched;
std::atomic<long> failed = 0;
std::atomic<long> inherited = 0;

bool isSpared() noexcept
{
    return thePlan.inBackgroundOnly && gettid() == getpid();
}

bool isOfInterest(const char *path) noexcept
{
    const std::size_t length = std::strlen(thePlan.path.data());
    return length == 0 || (path != nullptr && std::strncmp(path, thePlan.path.data(), length) == 0);
}

bool decide(Call call) noexcept
{
    const long number = ++matched[static_cast<std::size_t>(call)];
    if (thePlan.errorNumber == 0 || call != thePlan.call || number < thePlan.first ||
        number - thePlan.first >= thePlan.count)
        return false;
    ++failed;
    errno = thePlan.errorNumber;
    return true;
}

} // namespace

bool fails(Call call) noexcept
{
    return isArmed.load() && thePlan.path[0] == '\0' && !isSpared() && decide(call);
}

bool fails(Call call, const char *path) noexcept
{
    return isArmed.load() && !isSpared() && isOfInterest(path) && decide(call);
}

bool fails(Call call, int descriptor) noexcept
{
    if (!isArmed.load() || isSpared())
        return false;
    if (thePlan.path[0] == '\0')
        return decide(call);
    std::array<char, 64> name{};
    std::array<char, 4096> path{};
    std::snprintf(name.data(), name.size(), "/proc/self/fd/%d", descriptor);
    const int before = errno;
    const long length = syscall(SYS_readlink, name.data(), path.data(), path.size() - 1);
    errno = before;
    return length > 0 && isOfInterest(path.data()) && decide(call);
}

int opened(int descriptor) noexcept
{
    // The system's own call: ours would count.
    if (isArmed.load() && descriptor >= 0 &&
        (syscall(SYS_fcntl, descriptor, F_GETFD) & FD_CLOEXEC) == 0)
        ++inherited;
    return descriptor;
}

} // namespace Faults

void loadwickArmFaults(const Faults::Plan *plan)
{
    Faults::isArmed = false;
    Faults::thePlan = *plan;
    for (auto &count : Faults::matched)
        count = 0;
    Faults::failed = 0;
    Faults::inherited = 0;
    Faults::isArmed = true;
}

void loadwickDisarmFaults(Faults::Tally *tally)
{
    Faults::isArmed = false;
    for (std::size_t kind = 0; kind < Faults::callKinds; ++kind)
        tally->matched[kind] = Faults::matched[kind];
    tally->failed = Faults::failed;
    tally->inherited = Faults::inherited;
}
