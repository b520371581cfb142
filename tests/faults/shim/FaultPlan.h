#pragma once

#include <array>
#include <cstddef>

/// The orders and reports of the preloaded library: its only interface to the program whose calls
/// it makes fail. Test-only.
namespace Faults {

/// A kind of call. Variants of one call (`open` and `openat`, `malloc` and `calloc`) are one kind.
enum class Call
{
    open,
    mkostemp,
    read,
    write,
    lseek,
    close,
    stat,
    fstat,
    realpath,
    access,
    fsync,
    flock,
    fchmod,
    rename,
    link,
    unlink,
    mkdir,
    opendir,
    readdir,
    readlink,
    getcwd,
    pipe,
    dup,
    fcntl,
    poll,
    spawn,
    fork,
    pthreadCreate,
    pidfdOpen,
    waitid,
    mmap,
    malloc
};

constexpr std::size_t callKinds = static_cast<std::size_t>(Call::malloc) + 1;

/// Which calls fail: `count` consecutive calls of one kind, from the `first` on (counted from 1).
struct Plan
{
    Call call = Call::open;
    int errorNumber = 0; ///< 0 counts only
    long first = 1;
    long count = 1;
    bool inBackgroundOnly = false; ///< spares the main thread
    std::array<char, 512> path{};  ///< only calls on paths that begin so; empty for all
};

struct Tally
{
    std::array<long, callKinds> matched{}; ///< calls of each kind on the plan's path
    long failed = 0;
    long inherited = 0; ///< new descriptors that a child would inherit
};

} // namespace Faults

extern "C" {

/// Starts counting and failing calls, those of existing threads included.
void loadwickArmFaults(const Faults::Plan *plan);

/// Stops; returns what happened since the start.
void loadwickDisarmFaults(Faults::Tally *tally);

/// Shifts the wall clock by that many seconds, for this process only.
void loadwickShiftClock(long seconds);
}
