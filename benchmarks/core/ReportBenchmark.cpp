#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>

#include <benchmark/benchmark.h>

#include "probe/SlabParser.h"
#include "report/SlabAttributor.h"
#include "report/TreemapLayout.h"
#include "samples/GeneratedText.h"

namespace {

using namespace Loadwick;

// Parsing and attributing the categories of an answer, against merging its lines in a hash table
// with a reader that trusts every line.

constexpr std::int64_t lineCount = 100'000;

void parseAndAttribute(benchmark::State &state)
{
    const std::string answer = GeneratedText::answer(lineCount);
    for (auto round : state) {
        const auto slabs = SlabParser::parse(answer);
        benchmark::DoNotOptimize(SlabAttributor::attribute(1'000'000, slabs, {}));
    }
}

std::string keyOf(std::string_view name)
{
    std::string key;
    for (const char letter : name)
        if (std::isalnum(static_cast<unsigned char>(letter)) != 0)
            key += static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return key;
}

void mergeInHashTable(benchmark::State &state)
{
    constexpr std::string_view head = "SLAB ";
    constexpr std::string_view middle = " TOKENS ";
    const std::string answer = GeneratedText::answer(lineCount);
    for (auto round : state) {
        std::unordered_map<std::string, std::int64_t> sums;
        std::string_view rest = answer;
        while (!rest.empty()) {
            const std::string_view line = rest.substr(0, rest.find('\n'));
            rest.remove_prefix(line.size() + 1);
            const std::size_t end = line.rfind(middle);
            std::int64_t tokens = 0;
            std::from_chars(line.data() + end + middle.size(), line.data() + line.size(), tokens);
            sums[keyOf(line.substr(head.size(), end - head.size()))] += tokens;
        }
        benchmark::DoNotOptimize(sums);
    }
}

BENCHMARK(parseAndAttribute)->Name("slabs/ours");
BENCHMARK(mergeInHashTable)->Name("slabs/floor");

// Laying out a treemap, against sorting the same weights.

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
