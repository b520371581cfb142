#include "process/OutputBox.h"

#include <new>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/ProcessMemory.h"
#include "support/Sanitizers.h"

namespace Loadwick {

using Stream = OutputBox::Stream;

TEST(OutputBoxSlowTest, reportsWhenMemoryRanOutForEitherStream)
{
    if (isSanitized)
        GTEST_SKIP() << "a sanitizer needs memory of its own";
    const std::vector<char> chunk(64U << 20U, 'x');
    for (const Stream stream : {Stream::standardOutput, Stream::standardError}) {
        OutputBox box(2 * chunk.size());
        EXPECT_FALSE(box.ranOutOfMemory());
        {
            const MemoryShortage shortage(1U << 20U);
            box.append(stream, chunk);
        }
        EXPECT_TRUE(box.ranOutOfMemory());
        EXPECT_THROW((void)box.take(stream), std::bad_alloc);
    }
}

TEST(OutputBoxSlowTest, needsLittleMoreMemoryThanItHolds)
{
    if (isSanitized)
        GTEST_SKIP() << "a sanitizer's own memory counts too";
    constexpr std::size_t chunkCount = 3200;
    const std::vector<char> chunk(65'536, 'x');
    const std::size_t captured = chunkCount * chunk.size();
    CapturedBytes bytes(captured);
    const PeakMemory whileCapturing;
    for (std::size_t count = 0; count < chunkCount; ++count)
        bytes.append(chunk);
    const std::size_t capturing = whileCapturing.growthInBytes();

    const PeakMemory whileJoining;
    const std::optional<std::string> text = std::move(bytes).join();
    const std::size_t joining = whileJoining.growthInBytes();

    EXPECT_EQ(text->size(), captured);
    EXPECT_LT(capturing, captured * 11 / 10);
    EXPECT_LT(joining, captured / 10);
}

} // namespace Loadwick
