#include "faults/driver/Shim.h"

#include <cstdlib>

#include <dlfcn.h>
#include <unistd.h>

#include "text/Fatal.h"

namespace Faults::Shim {

namespace {

// The header declares them for the library itself; the driver is not linked with it.
using Arm = void(const Plan *);
using Disarm = void(Tally *);
using Shift = void(long);

template<typename Function>
Function *found(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_DEFAULT, name));
}

} // namespace

void require(char **arguments)
{
    if (found<Arm>("loadwickArmFaults") != nullptr) {
        unsetenv("LD_PRELOAD");
        return;
    }
    if (getenv("LD_PRELOAD") != nullptr)
        Loadwick::fatalError("the fault library cannot be preloaded");
    setenv("LD_PRELOAD", LOADWICK_FAULTS_SHIM, 1);
    execv("/proc/self/exe", arguments);
    Loadwick::fatalError("the driver cannot be restarted");
}

void arm(const Plan &plan)
{
    static auto *const call = found<Arm>("loadwickArmFaults");
    call(&plan);
}

Tally disarm()
{
    static auto *const call = found<Disarm>("loadwickDisarmFaults");
    Tally tally;
    call(&tally);
    return tally;
}

void shiftClock(long seconds)
{
    static auto *const call = found<Shift>("loadwickShiftClock");
    call(seconds);
}

} // namespace Faults::Shim
