// Calls that start and await processes and threads, or ask for memory or the time.

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <ctime>

#include <pthread.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "faults/shim/Decision.h"

using Faults::behind;
using Faults::Call;
using Faults::fails;

namespace {

std::atomic<long> clockShift = 0; // seconds

// Resolved at start-up, not at the first call: two threads resolving a function at the same time
// wait for each other by this very call.
auto *const nextSyscall = behind(syscall, "syscall");

} // namespace

extern "C" {

// The allocator under its own name: dlsym may allocate.
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *block, size_t size);

void *malloc(size_t size) noexcept
{
    return fails(Call::malloc) ? nullptr : __libc_malloc(size);
}

void *calloc(size_t count, size_t size) noexcept
{
    return fails(Call::malloc) ? nullptr : __libc_calloc(count, size);
}

void *realloc(void *block, size_t size) noexcept
{
    return fails(Call::malloc) ? nullptr : __libc_realloc(block, size);
}

void *mmap(void *address, size_t size, int protection, int flags, int descriptor,
           off_t offset) noexcept
{
    static auto *const next = behind(mmap, "mmap");
    return fails(Call::mmap) ? MAP_FAILED
                             : next(address, size, protection, flags, descriptor, offset);
}

int posix_spawn(pid_t *child, const char *path, const posix_spawn_file_actions_t *actions,
                const posix_spawnattr_t *attributes, char *const arguments[],
                char *const environment[])
{
    static auto *const next = behind(posix_spawn, "posix_spawn");
    return fails(Call::spawn, path)
               ? errno
               : next(child, path, actions, attributes, arguments, environment);
}

pid_t fork() noexcept
{
    static auto *const next = behind(fork, "fork");
    return fails(Call::fork) ? -1 : next();
}

int pthread_create(pthread_t *thread, const pthread_attr_t *attributes, void *(*start)(void *),
                   void *argument) noexcept
{
    static auto *const next = behind(pthread_create, "pthread_create");
    return fails(Call::pthreadCreate) ? errno : next(thread, attributes, start, argument);
}

int waitid(idtype_t type, id_t id, siginfo_t *found, int options)
{
    static auto *const next = behind(waitid, "waitid");
    return fails(Call::waitid) ? -1 : next(type, id, found, options);
}

long syscall(long number, ...) noexcept
{
    va_list rest;
    va_start(rest, number);
    std::array<long, 6> values{};
    for (long &value : values)
        value = va_arg(rest, long);
    va_end(rest);
    if (number == SYS_pidfd_open && fails(Call::pidfdOpen))
        return -1;
    return nextSyscall(number, values[0], values[1], values[2], values[3], values[4], values[5]);
}

int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    static auto *const next = behind(clock_gettime, "clock_gettime");
    const int outcome = next(clock, time);
    if (clock == CLOCK_REALTIME && outcome == 0)
        time->tv_sec += clockShift;
    return outcome;
}
}

void loadwickShiftClock(long seconds)
{
    clockShift = seconds;
}
