#include "process/CapturedBytes.h"

#include <algorithm>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace Loadwick {

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

TEST(CapturedBytesTest, isEmptyWithoutOutput)
{
    EXPECT_EQ(CapturedBytes(10).join(), "");
}

TEST(CapturedBytesTest, joinsChunksInOrder)
{
    CapturedBytes bytes(100);
    for (const char *const chunk : {"one ", "two ", "", "three"})
        bytes.append(std::string_view(chunk));
    EXPECT_EQ(std::move(bytes).join(), "one two three");
}

TEST(CapturedBytesTest, joinsALongText)
{
    const std::string text = numbered(3 * mebibyte + 17);
    CapturedBytes bytes(4 * mebibyte);
    for (std::size_t index = 0; index < text.size(); index += 50'000)
        bytes.append(
            std::span(text).subspan(index, std::min<std::size_t>(50'000, text.size() - index)));
    EXPECT_TRUE(std::move(bytes).join() == text);
}

TEST(CapturedBytesTest, takesALongChunk)
{
    const std::string text = numbered(mebibyte);
    CapturedBytes bytes(mebibyte);
    bytes.append(text);
    EXPECT_TRUE(std::move(bytes).join() == text);
}

TEST(CapturedBytesTest, keepsExactlyItsLimitAndNothingBeyond)
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

TEST(CapturedBytesTest, keepsNulAndBytesThatAreNoText)
{
    const std::string text("a\0\xFF", 3);
    CapturedBytes bytes(3);
    bytes.append(text);
    EXPECT_EQ(std::move(bytes).join(), text);
}

} // namespace Loadwick
