// Starting and capturing a program that prints nothing, from a large parent and from a small one.
#include <cstdlib>
#include <stdexcept>
#include <vector>

#include <benchmark/benchmark.h>

#include "probe/ProbeRunner.h"

namespace {

using namespace Loadwick;

constexpr std::size_t largeParent = std::size_t{512} << 20;

void spawn(benchmark::State &state)
{
    const std::vector<char> ballast(static_cast<std::size_t>(state.range()), 'x');
    benchmark::DoNotOptimize(ballast.data());
    for (auto round : state) {
        const Execution execution = ProbeRunner::execute({.cli = "/bin/true",
                                                          .repository = "/",
                                                          .environment = {},
                                                          .arguments = {},
                                                          .shutdown = nullptr});
        if (execution.exitCode != 0)
            state.SkipWithError("the program failed");
    }
}

BENCHMARK(spawn)->Name("spawn-size/ours")->Arg(largeParent)->UseRealTime();
BENCHMARK(spawn)->Name("spawn-size/floor")->Arg(0)->UseRealTime();

} // namespace
