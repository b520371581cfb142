#include <filesystem>
#include <vector>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ScratchFolder.h"
#include "probe/TranscriptReader.h"
#include "report/InstructionFileScanner.h"
#include "samples/GeneratedFiles.h"

namespace {

using namespace Loadwick;
namespace fs = std::filesystem;

// Scanning a thousand instruction files that one of them (0) or each of them (1) imports, against
// opening, examining, reading and closing the same files.

constexpr std::int64_t fileCount = 1'000;

fs::path instructionFolder(std::int64_t isCrossed)
{
    const fs::path folder = scratchFolder(isCrossed != 0 ? "crossed-instructions" : "instructions");
    GeneratedFiles::instructions(folder, fileCount,
                                 isCrossed != 0 ? GeneratedFiles::Imports::crossed
                                                : GeneratedFiles::Imports::flat);
    return folder;
}

void scan(benchmark::State &state)
{
    const fs::path home = instructionFolder(state.range()) / "home";
    const InstructionFileScanner scanner({.home = home.native()});
    for (auto round : state)
        if (scanner.scanSynchronously(home / "repository").allFiles().size() != fileCount)
            state.SkipWithError("not every file was found");
}

void readAll(benchmark::State &state)
{
    const auto paths =
        GeneratedFiles::instructionPaths(instructionFolder(state.range()), fileCount);
    std::vector<char> buffer(65'536);
    for (auto round : state)
        for (const fs::path &path : paths) {
            struct stat status = {};
            const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
            fstat(file, &status);
            benchmark::DoNotOptimize(read(file, buffer.data(), buffer.size()));
            close(file);
        }
}

BENCHMARK(scan)->Name("instructions/ours")->Arg(0)->Arg(1);
BENCHMARK(readAll)->Name("instructions/floor")->Arg(0)->Arg(1);

// Reading past one long line, against a shorter one: a byte must not cost more in a long line.

constexpr std::int64_t longLine = 64'000'000;
constexpr std::int64_t shortLine = 256'000;

void readPast(benchmark::State &state)
{
    const fs::path file = scratchFolder("line-" + std::to_string(state.range()) + ".jsonl");
    GeneratedFiles::longLineTranscript(file, state.range());
    for (auto round : state)
        benchmark::DoNotOptimize(TranscriptReader::firstAssistantUsageAtPath(file));
    state.SetBytesProcessed(state.iterations() * state.range());
}

BENCHMARK(readPast)->Name("line-byte/ours")->Arg(longLine);
BENCHMARK(readPast)->Name("line-byte/floor")->Arg(shortLine);

} // namespace
