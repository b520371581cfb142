#include "process/OutputBox.h"

#include <string>
#include <thread>

#include <gtest/gtest.h>

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

} // namespace Loadwick
