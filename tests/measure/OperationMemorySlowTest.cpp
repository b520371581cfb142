// Peak memory, which is meaningless under a sanitizer.
#include <filesystem>

#include <gtest/gtest.h>

#include "measure/Measurement.h"
#include "samples/GeneratedFiles.h"
#include "samples/TemporaryFolder.h"

namespace Loadwick {

namespace {

constexpr std::int64_t pieceSize = 65'536;

std::int64_t peakKiB(const std::filesystem::path &transcript)
{
    const auto counters = measured({"first-usage", transcript});
    EXPECT_EQ(counters.at("outcome"), 42'318);
    return counters.at("peak-kib");
}

} // namespace

TEST(OperationMemorySlowTest, needsNoMoreMemoryForALongerHead)
{
    const TemporaryFolder folder;
    GeneratedFiles::transcript(folder.path() / "short.jsonl", 2 * pieceSize);
    GeneratedFiles::transcript(folder.path() / "long.jsonl", 300 * pieceSize);
    const std::int64_t small = peakKiB(folder.path() / "short.jsonl");
    EXPECT_LT(peakKiB(folder.path() / "long.jsonl") - small, 1'024);
}

} // namespace Loadwick
