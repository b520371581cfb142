// A usage behind one long line, against one behind a shorter line: what a byte costs must not
// depend on the line.
#include <filesystem>

#include <benchmark/benchmark.h>

#include "ScratchFolder.h"
#include "probe/TranscriptReader.h"
#include "samples/GeneratedFiles.h"

namespace {

using namespace Loadwick;
namespace fs = std::filesystem;

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
