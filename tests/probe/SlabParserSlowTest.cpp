// Peak memory, which is meaningless under a sanitizer.
#include "probe/SlabParser.h"

#include <array>
#include <cstdint>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "probe/ProbeRunner.h"
#include "samples/TemporaryFolder.h"
#include "support/ProbeSettings.h"
#include "support/ProcessMemory.h"

namespace Loadwick {

namespace {

constexpr std::size_t size = 64U << 20;

/// `line` and `lineBreak` repeated for 64 MiB.
std::string repeated(std::string_view line, std::string_view lineBreak)
{
    std::string text;
    for (text.reserve(size + line.size() + lineBreak.size()); text.size() < size;)
        text.append(line).append(lineBreak);
    return text;
}

/// 64 MiB of lines with names of many scripts and any length, some of which are no slabs.
std::string randomAnswer(std::uint32_t seed)
{
    constexpr std::array<std::string_view, 8> pieces{
        "a", " ", "é", "कि", "🗂️", "1\uFE0F\u20E3", "\uFEFF", "`"};
    std::mt19937 random(seed);
    std::string text;
    for (text.reserve(size + 1'000); text.size() < size; text += '\n') {
        text += random() % 5 == 0 ? "" : "SLAB ";
        for (auto left = random() % 40; left > 0; --left)
            text += pieces.at(random() % pieces.size());
        text.append(" TOKENS ").append(std::to_string(random() % 100'000));
    }
    return text;
}

} // namespace

TEST(SlabParserSlowTest, takesLittleMoreMemoryThanTheAnswer)
{
    for (const std::string &line :
         {std::string("SLAB a TOKENS 1"), "SLAB " + std::string(1'000, 'n') + " TOKENS 1",
          "SLAB " + std::string(size, 'n') + " TOKENS 1", std::string("No slab.")}) {
        const std::string answer = repeated(line, "\n");
        const PeakMemory memory;
        EXPECT_EQ(SlabParser::parse(answer).empty(), line == "No slab.");
        EXPECT_LT(memory.growthInBytes(), answer.size() + answer.size() / 5) << line.substr(0, 20);
    }
}

TEST(SlabParserSlowTest, takesLittleMoreMemoryThanARandomAnswer)
{
    for (const std::uint32_t seed : {1U, 2U, 3U, 4U}) {
        const std::string answer = randomAnswer(seed);
        const PeakMemory memory;
        EXPECT_FALSE(SlabParser::parse(answer).empty());
        EXPECT_LT(memory.growthInBytes(), answer.size() + answer.size() / 5) << seed;
    }
}

TEST(SlabParserSlowTest, takesTwiceTheMemoryOfTheOutputInAWholeRun)
{
    const TemporaryFolder folder;
    folder.write("record",
                 R"({"session_id":"s","num_turns":1,"usage":{"input_tokens":1},"result":")" +
                     repeated("SLAB a TOKENS 1", "\\n") + "\"}");
    folder.writeScript(".local/bin/claude",
                       "#!/bin/sh\ncat '" + folder.path().string() + "/record'\n");
    const PeakMemory memory;
    const ProbeResult result = ProbeRunner(probeSettingsIn(folder.path())).run(folder.path());
    EXPECT_GT(result.selfReportedSlabs.size(), size / 18);
    EXPECT_LT(memory.growthInBytes(), size * 22 / 10);
}

} // namespace Loadwick
