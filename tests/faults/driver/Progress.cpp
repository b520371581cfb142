#include "faults/driver/Progress.h"

#include <filesystem>
#include <fstream>
#include <new>

#include <sys/mman.h>

#include "text/Fatal.h"

namespace Faults {

namespace {

/// The kernel functions in which the threads of a process wait.
std::string waitsOf(pid_t processID)
{
    const std::filesystem::path tasks = "/proc/" + std::to_string(processID) + "/task";
    std::string functions;
    std::error_code ignored;
    for (std::filesystem::directory_iterator task(tasks, ignored), end; task != end;
         task.increment(ignored)) {
        std::string function;
        std::getline(std::ifstream(task->path() / "wchan"), function);
        if (!function.empty() && function != "0")
            functions += (functions.empty() ? "; threads in " : ", ") + function;
    }
    return functions;
}

} // namespace

Progress::Progress()
{
    void *const page =
        mmap(nullptr, sizeof *m_step, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (page == MAP_FAILED)
        Loadwick::fatalError("no memory to share with a trial");
    m_step = new (page) std::atomic<const char *>("not begun");
}

Progress::~Progress()
{
    munmap(m_step, sizeof *m_step);
}

void Progress::begin(const char *step) noexcept
{
    m_step->store(step);
}

std::string Progress::of(pid_t processID) const
{
    return m_step->load() + waitsOf(processID);
}

} // namespace Faults
