#include "support/ProcessCensus.h"

#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>
#include <string_view>
#include <thread>

#include <unistd.h>

namespace Loadwick {

namespace {

std::size_t entryCount(const char *folder)
{
    std::size_t count = 0;
    std::error_code ignored;
    for (std::filesystem::directory_iterator entry(folder, ignored), end; entry != end;
         entry.increment(ignored))
        ++count;
    return count;
}

// Reads the fields after the name, which is in parentheses and may contain anything.
bool isZombieChild(const std::filesystem::path &process)
{
    std::ifstream file(process / "stat");
    std::string line;
    std::getline(file, line);
    const std::size_t nameEnd = line.rfind(") ");
    if (nameEnd == std::string::npos)
        return false;
    const std::string expected = "Z " + std::to_string(getpid()) + " ";
    return line.compare(nameEnd + 2, expected.size(), expected) == 0;
}

std::size_t zombieChildren()
{
    std::size_t count = 0;
    std::error_code ignored;
    for (std::filesystem::directory_iterator entry("/proc", ignored), end; entry != end;
         entry.increment(ignored))
        count += isZombieChild(entry->path()) ? 1U : 0U;
    return count;
}

} // namespace

ProcessCensus ProcessCensus::now()
{
    // A sanitizer starts its own thread with the first thread; it must not count as leaked.
    static const bool hasHadThreads = (std::thread([] {}).join(), true);
    (void)hasHadThreads;
    return {entryCount("/proc/self/fd"), entryCount("/proc/self/task"), zombieChildren()};
}

bool ProcessCensus::isWithin(const ProcessCensus &limit) const noexcept
{
    return descriptors <= limit.descriptors && threads <= limit.threads && zombies <= limit.zombies;
}

void PrintTo(const ProcessCensus &census, std::ostream *stream)
{
    *stream << census.descriptors << " descriptors, " << census.threads << " threads, "
            << census.zombies << " zombies";
}

long wakeCount()
{
    constexpr std::string_view label = "voluntary_ctxt_switches:";
    long count = 0;
    for (const auto &task : std::filesystem::directory_iterator("/proc/self/task")) {
        std::ifstream status(task.path() / "status");
        for (std::string line; std::getline(status, line);)
            if (line.starts_with(label))
                count += std::stol(line.substr(label.size()));
    }
    return count;
}

bool eventually(const std::function<bool()> &holds, std::chrono::milliseconds limit)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!holds()) {
        if (std::chrono::steady_clock::now() >= end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

} // namespace Loadwick
