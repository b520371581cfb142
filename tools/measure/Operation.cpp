#include "measure/Operation.h"

#include <filesystem>
#include <memory>
#include <optional>

#include "history/ScanHistory.h"
#include "history/ScanHistoryStore.h"
#include "posix/FileSystem.h"
#include "posix/RegularFile.h"
#include "probe/ProbeOutputParser.h"
#include "probe/ProbeRunner.h"
#include "probe/SlabParser.h"
#include "probe/TranscriptLocator.h"
#include "probe/TranscriptReader.h"
#include "probe/TranscriptSearch.h"
#include "report/InstructionFileScanner.h"
#include "report/SlabAttributor.h"
#include "report/TreemapLayout.h"
#include "samples/GeneratedFiles.h"
#include "samples/GeneratedText.h"

namespace Loadwick {

namespace {

namespace fs = std::filesystem;
using Words = Operation::Words;

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
    const TranscriptSearch search{.sessionID = words[1],
                                  .projectsRoot = words[0],
                                  .fileSystem = std::make_shared<PosixFileSystem>(),
                                  .shutdown = std::make_shared<Shutdown>(),
                                  .attempts = std::stoi(words[2]),
                                  .delaySeconds = 0};
    const std::optional<ProbeUsage> usage = search.run();
    return usage ? usage->startupTotal() : 0;
}

std::int64_t firstUsage(Words words)
{
    const auto usage = TranscriptReader::firstAssistantUsageAtPath(words[0]);
    return usage ? usage->startupTotal() : 0;
}

std::int64_t instructions(Words words)
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

std::int64_t make(Words words)
{
    const std::string &what = words[0];
    const std::int64_t count = std::stoll(words[2]);
    if (what == "projects")
        GeneratedFiles::projects(words[1], count);
    else if (what == "transcript")
        GeneratedFiles::transcript(words[1], count);
    else if (what == "long-line")
        GeneratedFiles::longLineTranscript(words[1], count);
    else if (what == "instructions")
        GeneratedFiles::instructions(words[1], count, GeneratedFiles::Imports::flat);
    else if (what == "crossed-instructions")
        GeneratedFiles::instructions(words[1], count, GeneratedFiles::Imports::crossed);
    else if (what == "answer")
        GeneratedFiles::answer(words[1], count);
    else if (what == "record")
        GeneratedFiles::record(words[1], count);
    else if (what == "history")
        GeneratedFiles::history(words[1], count);
    else
        return 0;
    return count;
}

} // namespace

const std::vector<Operation> &Operation::all()
{
    static const std::vector<Operation> operations{
        {"capture", "PROGRAM [ARGUMENT...]", 1, capture},
        {"capture-and-parse", "PROGRAM [ARGUMENT...]", 1, parsedCapture},
        {"search", "PROJECTS SESSION", 2, search},
        {"attempts", "PROJECTS SESSION COUNT", 3, attempts},
        {"first-usage", "TRANSCRIPT", 1, firstUsage},
        {"instructions", "FOLDER", 1, instructions},
        {"slab", "ANSWER", 1, slab},
        {"attribution", "ANSWER", 1, attribution},
        {"weights", "COUNT", 1, weights},
        {"treemap", "COUNT", 1, treemap},
        {"history-load", "FOLDER", 1, historyLoad},
        {"history-append", "FOLDER", 1, historyAppend},
        {"leaderboard", "FOLDER", 1, leaderboard},
        {"make",
         "projects|transcript|long-line|instructions|crossed-instructions|answer|record|history "
         "PATH COUNT|BYTES",
         3, make}};
    return operations;
}

} // namespace Loadwick
