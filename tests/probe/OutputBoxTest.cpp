#include "probe/OutputBox.h"

#include <new>
#include <string>
#include <thread>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "support/Sanitizers.h"

namespace Loadwick {

using Stream = OutputBox::Stream;

TEST(OutputBoxTest, keepsTheStreamsApart)
{
    OutputBox box(100);
    box.append(Stream::standardOutput, std::string("out"));
    box.append(Stream::standardError, std::string("error"));
    EXPECT_EQ(box.take(Stream::standardOutput), "out");
    EXPECT_EQ(box.take(Stream::standardError), "error");
}

TEST(OutputBoxTest, dropsWhatComesAfterItWasEmptied)
{
    OutputBox box(100);
    box.append(Stream::standardOutput, std::string("early"));
    EXPECT_EQ(box.take(Stream::standardOutput), "early");
    box.append(Stream::standardOutput, std::string("late"));
    EXPECT_EQ(box.take(Stream::standardOutput), std::nullopt);
}

TEST(OutputBoxTest, limitsEachStreamByItself)
{
    OutputBox box(4);
    box.append(Stream::standardOutput, std::string("four"));
    box.append(Stream::standardError, std::string("fives"));
    EXPECT_EQ(box.take(Stream::standardOutput), "four");
    EXPECT_EQ(box.take(Stream::standardError), std::nullopt);
}

TEST(OutputBoxTest, remembersThatAReaderRanOutOfTime)
{
    OutputBox box(1);
    EXPECT_FALSE(box.readersDidTimeOut());
    box.noteReaderTimeOut();
    EXPECT_TRUE(box.readersDidTimeOut());
}

TEST(OutputBoxTest, isFilledByTwoThreadsAtOnce)
{
    OutputBox box(1'000'000);
    const auto fill = [&](Stream stream, const std::string &text) {
        for (int round = 0; round < 1000; ++round)
            box.append(stream, text);
    };
    std::thread output([&] { fill(Stream::standardOutput, "ab"); });
    std::thread error([&] { fill(Stream::standardError, "xyz"); });
    output.join();
    error.join();
    EXPECT_EQ(box.take(Stream::standardOutput)->size(), 2000U);
    EXPECT_EQ(box.take(Stream::standardError)->size(), 3000U);
}

TEST(OutputBoxTest, saysWhenMemoryRanOutForEitherStream)
{
    if (isSanitized)
        GTEST_SKIP() << "the sanitizers themselves need memory";
    for (const Stream stream : {Stream::standardOutput, Stream::standardError}) {
        OutputBox box(100);
        EXPECT_FALSE(box.ranOutOfMemory());
        rlimit usual{};
        getrlimit(RLIMIT_AS, &usual);
        const rlimit none{.rlim_cur = 1, .rlim_max = usual.rlim_max};
        setrlimit(RLIMIT_AS, &none);
        box.append(stream, std::string("lost"));
        setrlimit(RLIMIT_AS, &usual);
        EXPECT_TRUE(box.ranOutOfMemory());
        EXPECT_THROW((void)box.take(stream), std::bad_alloc);
    }
}

} // namespace Loadwick
