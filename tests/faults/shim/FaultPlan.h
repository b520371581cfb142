#pragma once

#include <array>
#include <cstddef>

/// What the preloaded library is told and what it tells: the only words between it and the program
/// whose calls it lets fail. Test-only.
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

/// Which calls fail: of those of one kind, `count` in a row, beginning with the one that is the
/// `first` (from 1).
struct Plan
{
    Call call = Call::open;
    int errorNumber = 0; ///< 0 counts only
    long first = 1;
    long count = 1;
    bool inBackgroundOnly = false; ///< spares the thread that the program began with
    std::array<char, 512> path{};  ///< only calls on paths that begin so; empty for all
};

struct Tally
{
    std::array<long, callKinds> matched{}; ///< calls of each kind on the plan's path
    long failed = 0;
};

} // namespace Faults

extern "C" {

/// Begins to count and to let fail. Calls in threads of before are counted as well.
void loadwickArmFaults(const Faults::Plan *plan);

/// Ends that; what happened since.
void loadwickDisarmFaults(Faults::Tally *tally);

/// Moves the clock of the wall by so many seconds, from now on, for this process.
void loadwickShiftClock(long seconds);
}
