#include "process/OutputBox.h"

#include <new>
#include <vector>

#include <gtest/gtest.h>

#include "support/ProcessMemory.h"
#include "support/Sanitizers.h"

namespace Loadwick {

using Stream = OutputBox::Stream;

TEST(OutputBoxSlowTest, saysWhenMemoryRanOutForEitherStream)
{
    if (isSanitized)
        GTEST_SKIP() << "the sanitizers themselves need memory";
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

} // namespace Loadwick
