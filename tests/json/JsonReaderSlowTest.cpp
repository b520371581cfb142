#include "json/JsonReader.h"

#include <string>

#include <gtest/gtest.h>

#include "support/ProcessMemory.h"

namespace Loadwick {

namespace {

constexpr std::size_t size = 48U << 20;

/// A document that repeats `piece`.
std::string documentOf(std::string_view head, std::string_view piece, std::string_view tail)
{
    std::string text;
    text.reserve(size + head.size() + piece.size() + tail.size());
    text = head;
    while (text.size() < size)
        text += piece;
    text += tail;
    return text;
}

} // namespace

TEST(JsonReaderSlowTest, copiesAKeptStringOnce)
{
    for (const char *piece : {"plain text ", "\\n", "\\u00e9", "\xC3\xA9"}) {
        const std::string text = documentOf(R"({"id":1,"result":")", piece, R"(","x":2})");
        const PeakMemory memory;
        EXPECT_TRUE(jsonObject(text, {"result", "id"}));
        EXPECT_LT(memory.growthInBytes(), size + size / 20) << piece;
    }
}

TEST(JsonReaderSlowTest, needsNoMemoryForSkippedValues)
{
    for (const char *piece : {R"("text",)", "[[],{}],", "[1, 2.5],", "     ", R"({"a":null},)"}) {
        const std::string text = documentOf(R"({"other":[)", piece, "0]}");
        const PeakMemory memory;
        EXPECT_TRUE(jsonObject(text, {"result"}));
        EXPECT_LT(memory.growthInBytes(), size / 20) << piece;
    }
}

TEST(JsonReaderSlowTest, needsNoMemoryForAContainerWhereAScalarBelongs)
{
    const std::string text = documentOf(R"({"result":[)", "0,", "0]}");
    const PeakMemory memory;
    EXPECT_TRUE(jsonObjectOfScalars(text, {"result"}));
    EXPECT_LT(memory.growthInBytes(), size / 20);
}

TEST(JsonReaderSlowTest, needsOneBitPerNestingLevel)
{
    const std::string text = documentOf(R"({"other":)", "[", "");
    const PeakMemory memory;
    EXPECT_FALSE(jsonObject(text, {"result"}));
    EXPECT_LT(memory.growthInBytes(), size / 3);
}

} // namespace Loadwick
