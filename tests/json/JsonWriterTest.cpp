#include "json/JsonWriter.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace Loadwick {

namespace {

std::string literal(std::string_view text)
{
    JsonWriter writer;
    writer.value(text);
    return writer.text();
}

} // namespace

TEST(JsonWriterTest, writesOneMemberOrElementALine)
{
    JsonWriter writer;
    writer.open('{');
    writer.key("list");
    writer.open('[');
    writer.element();
    writer.value(std::int64_t{1});
    writer.element();
    writer.open('{');
    writer.key("inner");
    writer.value("text");
    writer.close('}');
    writer.close(']');
    writer.key("number");
    writer.value(std::int64_t{-2});
    writer.close('}');
    EXPECT_EQ(writer.text(), "{\n"
                             "  \"list\" : [\n"
                             "    1,\n"
                             "    {\n"
                             "      \"inner\" : \"text\"\n"
                             "    }\n"
                             "  ],\n"
                             "  \"number\" : -2\n"
                             "}");
}

TEST(JsonWriterTest, writesEmptyContainersOnOneLine)
{
    JsonWriter writer;
    writer.open('{');
    writer.key("list");
    writer.open('[');
    writer.close(']');
    writer.key("object");
    writer.open('{');
    writer.close('}');
    writer.close('}');
    EXPECT_EQ(writer.text(), "{\n  \"list\" : [],\n  \"object\" : {}\n}");
}

TEST(JsonWriterTest, escapesOnlyQuotationMarksBackslashesAndControlCharacters)
{
    EXPECT_EQ(literal("a\"b\\c"), R"("a\"b\\c")");
    EXPECT_EQ(literal("\b\f\n\r\t"), R"("\b\f\n\r\t")");
    EXPECT_EQ(literal(std::string_view("\0\x01\x1F", 3)), R"("\u0000\u0001\u001f")");
    EXPECT_EQ(literal("/a/<b> é 日 👩‍👧 \x7F \xE2\x80\xA8"),
              "\"/a/<b> é 日 👩‍👧 \x7F \xE2\x80\xA8\"");
    EXPECT_EQ(literal(""), "\"\"");
}

TEST(JsonWriterTest, roundTripsThroughAnyReader)
{
    std::string all;
    for (int code = 0; code < 0x80; ++code)
        all += static_cast<char>(code);
    EXPECT_EQ(nlohmann::json::parse(literal(all)).get<std::string>(), all);
}

TEST(JsonWriterTest, replacesIllFormedUtf8)
{
    EXPECT_EQ(literal("a\xFF\"z"), "\"a\xEF\xBF\xBD\\\"z\"");
}

TEST(JsonWriterTest, writesTheExtremesOfEachNumberType)
{
    JsonWriter writer;
    writer.value(std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(writer.text(), "-9223372036854775808");
}

} // namespace Loadwick
