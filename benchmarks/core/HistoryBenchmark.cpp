// Loading, extending and analysing a history, against parsing its text, writing such a file, and
// copying its list.
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <nlohmann/json.hpp>
#include <unistd.h>

#include "ScratchFolder.h"
#include "history/ScanHistory.h"
#include "history/ScanHistoryFile.h"
#include "history/ScanHistoryStore.h"
#include "samples/GeneratedFiles.h"

namespace {

using namespace Loadwick;
namespace fs = std::filesystem;

constexpr std::int64_t storedScans = 200;

fs::path historyFolder(std::int64_t scanCount)
{
    const fs::path folder = scratchFolder("history-" + std::to_string(scanCount));
    GeneratedFiles::history(folder, scanCount);
    return folder;
}

std::string contentOf(const fs::path &path)
{
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

/// The minimum that keeps a file whole through a crash.
void writeSynced(const fs::path &folder, const std::string &bytes)
{
    const fs::path unfinished = folder / "floor.part";
    const int file = open(unfinished.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (write(file, bytes.data(), bytes.size()) < 0)
        std::abort();
    fsync(file);
    close(file);
    fs::rename(unfinished, folder / "floor.json");
    const int parent = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    fsync(parent);
    close(parent);
}

void load(benchmark::State &state)
{
    const ScanHistoryStore store(historyFolder(state.range()));
    for (auto round : state)
        benchmark::DoNotOptimize(store.load());
}

void parse(benchmark::State &state)
{
    const std::string text =
        contentOf(historyFolder(state.range()) / std::string(ScanHistoryStore::fileName));
    for (auto round : state)
        benchmark::DoNotOptimize(nlohmann::json::parse(text));
}

void append(benchmark::State &state)
{
    const fs::path folder = scratchFolder("history-appended");
    fs::remove_all(folder);
    GeneratedFiles::history(folder, storedScans);
    ScanHistoryStore store(folder);
    const RecordedScan scan = GeneratedFiles::scans(1).front();
    for (auto round : state)
        benchmark::DoNotOptimize(store.append(scan));
}

void parseAndWrite(benchmark::State &state)
{
    const fs::path folder = historyFolder(storedScans);
    const std::string text = contentOf(folder / std::string(ScanHistoryStore::fileName));
    for (auto round : state) {
        benchmark::DoNotOptimize(nlohmann::json::parse(text));
        writeSynced(folder, text);
    }
}

void leaderboardAndAxis(benchmark::State &state)
{
    const std::vector<RecordedScan> scans = GeneratedFiles::scans(state.range());
    for (auto round : state) {
        benchmark::DoNotOptimize(ScanHistory::leaderboard(scans));
        benchmark::DoNotOptimize(ScanHistory::categoryAxis(scans));
    }
}

void copy(benchmark::State &state)
{
    const std::vector<RecordedScan> scans = GeneratedFiles::scans(state.range());
    for (auto round : state) {
        std::vector<RecordedScan> copied = scans;
        for (RecordedScan &scan : copied) // which share their categories otherwise
            scan.categories =
                RecordedCategories::List(scan.categories.begin(), scan.categories.end());
        benchmark::DoNotOptimize(copied);
    }
}

BENCHMARK(load)->Name("history-load/ours")->Arg(storedScans)->Arg(10'000);
BENCHMARK(parse)->Name("history-load/floor")->Arg(storedScans)->Arg(10'000);
BENCHMARK(append)->Name("history-append/ours")->UseRealTime();
BENCHMARK(parseAndWrite)->Name("history-append/floor")->UseRealTime();
BENCHMARK(leaderboardAndAxis)->Name("leaderboard/ours")->Arg(storedScans)->Arg(10'000);
BENCHMARK(copy)->Name("leaderboard/floor")->Arg(storedScans)->Arg(10'000);

} // namespace
