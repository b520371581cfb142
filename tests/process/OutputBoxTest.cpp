#include "process/OutputBox.h"

#include <string>
#include <string_view>
#include <thread>

#include <gtest/gtest.h>

namespace Loadwick {

using Stream = OutputBox::Stream;

namespace {

constexpr std::size_t mebibyte = 1024 * 1024;

std::string numbered(std::size_t byteCount)
{
    std::string text;
    for (int number = 0; text.size() < byteCount; ++number)
        text += std::to_string(number) + " ";
    text.resize(byteCount);
    return text;
}

} // namespace

TEST(OutputBoxTest, joinsChunksInOrder)
{
    EXPECT_EQ(CapturedBytes(10).join(), "");
    CapturedBytes bytes(100);
    for (const char *const chunk : {"one ", "two ", "", "three"})
        bytes.append(std::string_view(chunk));
    EXPECT_EQ(std::move(bytes).join(), "one two three");
}

TEST(OutputBoxTest, joinsALongTextFromChunksOfAnySize)
{
    const std::string text = numbered(3 * mebibyte + 17);
    for (const std::size_t size : {std::size_t{50'000}, text.size()}) {
        CapturedBytes bytes(4 * mebibyte);
        for (std::size_t index = 0; index < text.size(); index += size)
            bytes.append(std::string_view(text).substr(index, size));
        EXPECT_TRUE(std::move(bytes).join() == text) << size;
    }
}

TEST(OutputBoxTest, keepsExactlyItsLimit)
{
    CapturedBytes full(4);
    full.append(std::string("four"));
    full.append(std::string());
    EXPECT_EQ(std::move(full).join(), "four");

    CapturedBytes beyond(4);
    beyond.append(std::string("four"));
    beyond.append(std::string("5"));
    beyond.append(std::string("more"));
    EXPECT_EQ(std::move(beyond).join(), std::nullopt);
}

TEST(OutputBoxTest, keepsNulAndOtherBinaryBytes)
{
    const std::string text("a\0\xFF", 3);
    CapturedBytes bytes(3);
    bytes.append(text);
    EXPECT_EQ(std::move(bytes).join(), text);
}

TEST(OutputBoxTest, keepsTheStreamsApart)
{
    OutputBox box(100);
    box.append(Stream::standardOutput, std::string("out"));
    box.append(Stream::standardError, std::string("error"));
    EXPECT_EQ(box.take(Stream::standardOutput), "out");
    EXPECT_EQ(box.take(Stream::standardError), "error");
}

TEST(OutputBoxTest, dropsChunksAfterItWasEmptied)
{
    OutputBox box(100);
    box.append(Stream::standardOutput, std::string("early"));
    EXPECT_EQ(box.take(Stream::standardOutput), "early");
    box.append(Stream::standardOutput, std::string("late"));
    EXPECT_EQ(box.take(Stream::standardOutput), std::nullopt);
}

TEST(OutputBoxTest, limitsEachStreamSeparately)
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

TEST(OutputBoxTest, isFilledByTwoThreadsConcurrently)
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
