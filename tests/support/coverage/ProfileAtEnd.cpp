// Also writes the coverage counts of a program that ends without its exit handlers: one that aborts
// in a death test, or a forked child that calls _exit.
#include <csignal>

#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

extern "C" int __llvm_profile_write_file();

extern "C" void _exit(int status)
{
    // This process may be simulating a full disk.
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = limit.rlim_max;
    setrlimit(RLIMIT_FSIZE, &limit);
    __llvm_profile_write_file();
    syscall(SYS_exit_group, status);
    __builtin_unreachable();
}

namespace Loadwick {

namespace {

void writeCounts(int number)
{
    __llvm_profile_write_file();
    std::signal(number, SIG_DFL);
    std::raise(number);
}

[[maybe_unused]] const bool isInstalled = std::signal(SIGABRT, writeCounts) == SIG_DFL;

} // namespace

} // namespace Loadwick
