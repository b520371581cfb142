// Laying out a treemap, against sorting the same weights.
#include <algorithm>
#include <functional>

#include <benchmark/benchmark.h>

#include "report/TreemapLayout.h"
#include "samples/GeneratedText.h"

namespace {

using namespace Loadwick;

void layOut(benchmark::State &state)
{
    const std::vector<double> weights = GeneratedText::weights(state.range());
    for (auto round : state)
        benchmark::DoNotOptimize(TreemapLayout::layout(weights));
}

void sort(benchmark::State &state)
{
    const std::vector<double> weights = GeneratedText::weights(state.range());
    for (auto round : state) {
        std::vector<double> sorted = weights;
        std::sort(sorted.begin(), sorted.end(), std::greater());
        benchmark::DoNotOptimize(sorted);
    }
}

BENCHMARK(layOut)->Name("treemap/ours")->Arg(1'000)->Arg(100'000);
BENCHMARK(sort)->Name("treemap/floor")->Arg(1'000)->Arg(100'000);

} // namespace
