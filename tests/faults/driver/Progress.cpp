#include "faults/driver/Progress.h"

#include <filesystem>
#include <fstream>
#include <new>

#include <sys/mman.h>

#include "text/Fatal.h"

namespace Faults {

namespace {

/// The places inside the system where the threads of a process wait.
std::string placesOf(pid_t processID)
{
    const std::filesystem::path tasks = "/proc/" + std::to_string(processID) + "/task";
    std::string places;
    std::error_code ignored;
    for (std::filesystem::directory_iterator task(tasks, ignored), end; task != end;
         task.increment(ignored)) {
        std::string place;
        std::getline(std::ifstream(task->path() / "wchan"), place);
        if (!place.empty() && place != "0")
            places += (places.empty() ? "; threads in " : ", ") + place;
    }
    return places;
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
    return m_step->load() + placesOf(processID);
}

} // namespace Faults
