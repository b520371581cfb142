// Runs one operation of the core and prints, a line each, its outcome, its system calls and the
// peak memory of the program. For developers; see benchmarks/run.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "history/ScanComparison.h"
#include "history/ScanHistory.h"
#include "history/ScanHistoryStore.h"
#include "history/ScanTables.h"
#include "measure/CallCounters.h"
#include "posix/FileSystem.h"
#include "posix/RegularFile.h"
#include "probe/ProbeOutputParser.h"
#include "probe/ProbeRunner.h"
#include "probe/SlabParser.h"
#include "probe/TranscriptLocator.h"
#include "probe/TranscriptReader.h"
#include "report/InstructionFileScanner.h"
#include "report/SlabAttributor.h"
#include "report/TreemapLayout.h"
#include "samples/GeneratedFiles.h"
#include "samples/GeneratedText.h"

namespace Loadwick {

namespace {

namespace fs = std::filesystem;
using Words = std::span<const std::string>;

std::int64_t countOf(const auto &list)
{
    return static_cast<std::int64_t>(list.size());
}

std::string contentOf(const std::string &path)
{
    auto file = RegularFile::open(path);
    return file ? file->readUpTo(std::size_t{1} << 31).value_or(std::string()) : std::string();
}

Execution captured(Words words)
{
    return ProbeRunner::execute(
        {.cli = words.front(),
         .repository = "/",
         .environment = currentEnvironment(),
         .arguments = std::vector<std::string>(words.begin() + 1, words.end()),
         .shutdown = nullptr});
}

std::int64_t capture(Words words)
{
    return countOf(captured(words).standardOutput);
}

std::int64_t parsedCapture(Words words)
{
    const Execution execution = captured(words);
    return countOf(ProbeOutputParser::parse(execution.standardOutput, execution.standardError,
                                            execution.exitCode)
                       .result);
}

std::int64_t search(Words words)
{
    return TranscriptLocator::find(words[1], words[0], PosixFileSystem()) ? 1 : 0;
}

std::int64_t attempts(Words words)
{
    ProbeRunner::Settings settings;
    settings.projectsRoot = words[0];
    settings.fileSystem = std::make_shared<PosixFileSystem>();
    settings.transcriptRetries = std::stoi(words[2]);
    settings.transcriptRetryDelay = 0;
    const auto usage = ProbeRunner(settings).transcriptUsage(words[1]);
    return usage ? usage->startupTotal() : 0;
}

std::int64_t firstUsage(Words words)
{
    const auto usage = TranscriptReader::firstAssistantUsageAtPath(words[0]);
    return usage ? usage->startupTotal() : 0;
}

std::int64_t instructionFiles(Words words)
{
    const fs::path home = fs::path(words[0]) / "home";
    const InstructionFileScanner scanner({.home = home.native()});
    return countOf(scanner.scanSynchronously(home / "repository").allFiles());
}

std::int64_t slab(Words words)
{
    return countOf(SlabParser::parse(contentOf(words[0])));
}

std::int64_t attribution(Words words)
{
    const auto slabs = SlabParser::parse(contentOf(words[0]));
    return countOf(SlabAttributor::attribute(1'000'000, slabs, {}).rows);
}

std::int64_t treemap(Words words)
{
    return countOf(TreemapLayout::layout(GeneratedText::weights(std::stoll(words[0]))));
}

std::int64_t weights(Words words)
{
    return countOf(GeneratedText::weights(std::stoll(words[0])));
}

std::int64_t historyLoad(Words words)
{
    return countOf(ScanHistoryStore(words[0]).load());
}

std::int64_t historyAppend(Words words)
{
    const RecordedScan scan = GeneratedFiles::scans(1).front();
    return countOf(ScanHistoryStore(words[0]).append(scan));
}

std::int64_t leaderboard(Words words)
{
    const std::vector<RecordedScan> scans = ScanHistoryStore(words[0]).load();
    return countOf(ScanHistory::leaderboard(scans)) + countOf(ScanHistory::categoryAxis(scans));
}

/// Two scans with as many categories in common, in opposite orders.
std::vector<RecordedScan> scansOfCategories(std::int64_t count)
{
    RecordedCategories::List ascending;
    for (std::int64_t index = 0; index < count; ++index)
        ascending.push_back({"A category by the name of " + std::to_string(index), index});
    RecordedCategories::List descending(ascending.rbegin(), ascending.rend());
    for (RecordedCategory &category : descending)
        category.tokens = 1;
    std::vector<RecordedScan> scans = GeneratedFiles::scans(2);
    scans[0].categories = std::move(ascending);
    scans[1].categories = std::move(descending);
    return scans;
}

std::int64_t comparison(Words words)
{
    const std::vector<RecordedScan> scans = scansOfCategories(std::stoll(words[0]));
    return countOf(ScanComparison::between(scans[0], scans[1]).changes);
}

std::int64_t categoryTable(Words words)
{
    return countOf(ScanTables::categories(scansOfCategories(std::stoll(words[0]))));
}

std::int64_t make(Words words)
{
    using namespace GeneratedFiles;
    static const std::map<std::string, void (*)(const fs::path &, std::int64_t)> makers{
        {"projects", projects},
        {"transcript", transcript},
        {"long-line", longLineTranscript},
        {"instructions", [](auto &path, auto count) { instructions(path, count, Imports::flat); }},
        {"crossed-instructions",
         [](auto &path, auto count) { instructions(path, count, Imports::crossed); }},
        {"answer", answer},
        {"record", record},
        {"history", history},
        {"compared-history", comparedHistory}};
    const auto maker = makers.find(words[0]);
    if (maker == makers.end())
        return 0;
    const std::int64_t count = std::stoll(words[2]);
    maker->second(words[1], count);
    return count;
}

struct Operation
{
    std::string_view verb;
    std::string_view usage; ///< its arguments, for the usage text
    std::size_t wordCount;  ///< required arguments
    /// Does the work; returns how much it produced or found.
    std::int64_t (*run)(Words words);
};

const std::vector<Operation> operations{
    {"capture", "PROGRAM [ARGUMENT...]", 1, capture},
    {"capture-and-parse", "PROGRAM [ARGUMENT...]", 1, parsedCapture},
    {"search", "PROJECTS SESSION", 2, search},
    {"attempts", "PROJECTS SESSION COUNT", 3, attempts},
    {"first-usage", "TRANSCRIPT", 1, firstUsage},
    {"instructions", "FOLDER", 1, instructionFiles},
    {"slab", "ANSWER", 1, slab},
    {"attribution", "ANSWER", 1, attribution},
    {"weights", "COUNT", 1, weights},
    {"treemap", "COUNT", 1, treemap},
    {"history-load", "FOLDER", 1, historyLoad},
    {"history-append", "FOLDER", 1, historyAppend},
    {"leaderboard", "FOLDER", 1, leaderboard},
    {"comparison", "COUNT", 1, comparison},
    {"category-table", "COUNT", 1, categoryTable},
    {"make",
     "projects|transcript|long-line|instructions|crossed-instructions|answer|record|history|"
     "compared-history PATH COUNT|BYTES",
     3, make}};

int printUsage()
{
    for (const Operation &operation : operations)
        std::cerr << "loadwick-measure " << operation.verb << ' ' << operation.usage << '\n';
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

int run(int argc, char **argv)
{
    const std::vector<std::string> words(argv + std::min(argc, 2), argv + argc);
    const auto chosen =
        std::find_if(operations.begin(), operations.end(), [&](const Operation &operation) {
            return argc > 1 && operation.verb == argv[1];
        });
    if (chosen == operations.end() || words.size() < chosen->wordCount)
        return printUsage();
    CallCounters::ofProcess().restart();
    print("outcome", chosen->run(words));
    printCounters();
    return 0;
}

} // namespace

} // namespace Loadwick

int main(int argc, char **argv)
{
    return Loadwick::run(argc, argv);
}
