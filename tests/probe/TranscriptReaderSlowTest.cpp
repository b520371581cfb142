#include "probe/TranscriptReader.h"

#include <chrono>

#include <gtest/gtest.h>

#include "samples/TemporaryFolder.h"
#include "support/TranscriptLines.h"

namespace Loadwick {

namespace {

namespace fs = std::filesystem;

std::optional<std::int64_t> inputTokensOf(std::string_view content)
{
    const TemporaryFolder folder;
    const auto usage =
        TranscriptReader::firstAssistantUsageAtPath(folder.write("t.jsonl", content));
    return usage ? std::optional(usage->inputTokens) : std::nullopt;
}

} // namespace

TEST(TranscriptReaderSlowTest, keepsALineOfSixtyFourMebibytes)
{
    constexpr std::size_t longest = 64U << 20;
    const std::string line = assistantLine(17);
    EXPECT_EQ(inputTokensOf(std::string(longest - line.size(), ' ') + line + "\n"), 17);
    EXPECT_FALSE(inputTokensOf(std::string(longest - line.size() + 1, ' ') + line + "\n"));
}

TEST(TranscriptReaderSlowTest, searchesEachByteOfALongLineOnce)
{
    const auto secondsFor = [](std::size_t size) {
        const TemporaryFolder folder;
        const fs::path path = folder.write("t.jsonl", "");
        fs::resize_file(path, size);
        const auto start = std::chrono::steady_clock::now();
        EXPECT_FALSE(TranscriptReader::firstAssistantUsageAtPath(path));
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    // Searching the whole line after each read would take 1000 reads times 32 MiB.
    EXPECT_LT(secondsFor(60U << 20), 5.0);
}

} // namespace Loadwick
