// Does one operation of the core and prints, a line each, what came of it, what it asked of the
// system and the greatest memory that the program held. For developers; see benchmarks/run.
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "measure/CallCounters.h"
#include "measure/Operation.h"

namespace {

using namespace Loadwick;

int printUsage()
{
    for (const Operation &operation : Operation::all())
        std::fprintf(stderr, "loadwick-measure %.*s %.*s\n",
                     static_cast<int>(operation.verb.size()), operation.verb.data(),
                     static_cast<int>(operation.usage.size()), operation.usage.data());
    return 2;
}

void print(const char *name, long long value)
{
    std::printf("%-16s %lld\n", name, value);
}

/// In KiB; 0 where the system cannot tell.
long long peakMemory()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmHWM:"))
            return std::stoll(line.substr(sizeof "VmHWM:"));
    return 0;
}

void printCounters()
{
    const CallCounters &counters = CallCounters::ofProcess();
    print("folders-listed", counters.foldersListed);
    print("entries-seen", counters.entriesSeen);
    print("files-opened", counters.filesOpened);
    print("paths-looked-at", counters.pathsLookedAt);
    print("paths-resolved", counters.pathsResolved);
    print("lines-parsed", counters.linesParsed);
    print("reads", counters.reads);
    print("bytes-read", counters.bytesRead);
    print("peak-kib", peakMemory());
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<std::string> words(argv + std::min(argc, 2), argv + argc);
    const auto &all = Operation::all();
    const auto chosen = std::find_if(all.begin(), all.end(), [&](const Operation &operation) {
        return argc > 1 && operation.verb == argv[1];
    });
    if (chosen == all.end() || words.size() < chosen->wordCount)
        return printUsage();
    CallCounters::ofProcess().restart();
    print("outcome", chosen->run(words));
    printCounters();
}
