#include "json/JsonReader.h"

#include <limits>
#include <random>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/LoneSurrogates.h"

namespace Loadwick {

using nlohmann::json;
using namespace std::string_literals;

namespace {

bool isObject(std::string_view text)
{
    return jsonObject(text, {}).has_value();
}

/// The value, converted to the library's type.
json libraryValue(const JsonValue &value)
{
    json all;
    if (const auto *const items = value.as<JsonValue::Array>()) {
        all = json::array();
        for (const JsonValue &item : *items)
            all.push_back(libraryValue(item));
    } else if (const auto *const members = value.as<JsonValue::Object>()) {
        all = json::object();
        for (const JsonMember &each : *members)
            all[each.key] = libraryValue(each.value);
    } else if (const auto *const text = textOf(&value)) {
        all = *text;
    } else if (const auto *const flag = value.as<bool>()) {
        all = *flag;
    } else if (const auto integer = exactInteger(&value)) {
        all = *integer;
    } else if (const auto *const number = value.as<double>()) {
        all = *number;
    }
    return all;
}

/// The parts of a document, written as the library writes them; "none" if it is not a JSON object.
std::string partsOf(std::string_view text, std::initializer_list<std::string_view> keptPaths)
{
    const auto object = jsonObject(text, keptPaths);
    return object ? libraryValue(*object).dump() : "none";
}

std::string scalarsOf(std::string_view text, std::initializer_list<std::string_view> keptPaths)
{
    const auto object = jsonObjectOfScalars(text, keptPaths);
    return object ? libraryValue(*object).dump() : "none";
}

} // namespace

TEST(JsonReaderTest, keepsOnlyTheNamedMembers)
{
    EXPECT_EQ(partsOf(R"({"a":1,"b":[true,null,"x",{"y":-2}],"c":{"d":1.5}})", {"b", "c", "e"}),
              R"({"b":[true,null,"x",{"y":-2}],"c":{"d":1.5}})");
    EXPECT_EQ(partsOf(R"({"a":1})", {}), "{}");
}

TEST(JsonReaderTest, keepsPartsOfAMember)
{
    EXPECT_EQ(partsOf(R"({"message":{"id":"m","usage":{"n":[1,2]},"content":[{"usage":3}]},
                          "usage":4,"type":"assistant"})",
                      {"type", "message.usage"}),
              R"({"message":{"usage":{"n":[1,2]}},"type":"assistant"})");
    EXPECT_EQ(partsOf(R"({"a":{"b":{"c":1,"d":2},"d":3,"c":4}})", {"a.b.c", "a.d"}),
              R"({"a":{"b":{"c":1},"d":3}})");
}

TEST(JsonReaderTest, keepsOnlyScalarsOnRequest)
{
    const std::string_view text =
        R"({"a":[1],"b":{"c":{},"d":2},"e":"x","f":true,"g":null,"h":[]})";
    EXPECT_EQ(scalarsOf(text, {"a", "b.c", "b.d", "e", "f", "g", "h.i"}),
              R"({"b":{"d":2},"e":"x","f":true,"g":null})");
    EXPECT_EQ(scalarsOf(R"({"a":1,"a":[2]})", {"a"}), "{}");
    EXPECT_EQ(scalarsOf(R"({"a":[2],"a":1})", {"a"}), R"({"a":1})");
    EXPECT_EQ(scalarsOf(R"({"a":[1,}]})", {"a"}), "none");
}

TEST(JsonReaderTest, findsAKeyByItsWholeNameDespiteEscapes)
{
    EXPECT_EQ(partsOf(R"({"\u0061b":1})", {"ab"}), R"({"ab":1})");
    EXPECT_EQ(partsOf(R"({"message.usage":1})", {"message.usage"}), "{}");
    EXPECT_EQ(partsOf(R"({"":1,"m":2,"message":3,"messages":{"usage":4}})", {"message.usage"}),
              "{}");
    EXPECT_EQ(partsOf("{\"" + std::string(5000, 'a') + "\":1,\"a\":2}", {"a"}), R"({"a":2})");
}

TEST(JsonReaderTest, lastDuplicateKeyWins)
{
    EXPECT_EQ(partsOf(R"({"a":1,"a":"x","a":[2]})", {"a"}), R"({"a":[2]})");
    EXPECT_EQ(partsOf(R"({"a":{"b":1,"c":2,"b":3}})", {"a"}), R"({"a":{"b":3,"c":2}})");
}

TEST(JsonReaderTest, lastDuplicateKeyOnThePathWins)
{
    EXPECT_EQ(partsOf(R"({"m":{"u":1},"m":5})", {"m.u"}), "{}");
    EXPECT_EQ(partsOf(R"({"m":{"u":1},"m":[{"u":2}]})", {"m.u"}), "{}");
    EXPECT_EQ(partsOf(R"({"m":{"u":1},"m":{}})", {"m.u"}), R"({"m":{}})");
    EXPECT_EQ(partsOf(R"({"m":7,"m":{"u":1,"u":2}})", {"m.u"}), R"({"m":{"u":2}})");
}

TEST(JsonReaderTest, trimsUnicodeWhiteSpaceAroundTheDocument)
{
    EXPECT_TRUE(isObject(" \t\r\n{}\n"));
    EXPECT_TRUE(isObject("\u00A0\u2028\u0085\v\f{}\u3000"));
    EXPECT_FALSE(isObject("{\u00A0}"));
}

TEST(JsonReaderTest, rejectsAByteOrderMark)
{
    EXPECT_FALSE(isObject("\uFEFF{}"));
    EXPECT_FALSE(isObject("{}\uFEFF"));
    EXPECT_FALSE(isObject(" \uFEFF{}"));
}

TEST(JsonReaderTest, returnsNothingUnlessTheTopLevelIsAnObject)
{
    for (const char *text : {"[]", "[{}]", "1", "\"x\"", "null", "true", "", " "})
        EXPECT_FALSE(isObject(text)) << text;
}

TEST(JsonReaderTest, returnsNothingUnlessTheTextIsJson)
{
    for (const char *text : {"{",
                             "}",
                             "{}}",
                             "{} {}",
                             "{,}",
                             R"({"a"})",
                             R"({"a":})",
                             R"({"a":1,})",
                             R"({"a" 1})",
                             R"({a:1})",
                             R"({'a':1})",
                             R"({"a":[1,]})",
                             R"({"a":[1 2]})",
                             R"({"a":[1})",
                             R"({"a":{]})",
                             R"({"a":tru})",
                             R"({"a":True})",
                             R"({"a":NaN})",
                             R"({"a":1}//)",
                             R"({"a":"x})",
                             R"({1:1})",
                             R"({"a":1 "b":2})",
                             R"({"a"::1})",
                             R"({"a":[,1]})"})
        EXPECT_FALSE(isObject(text)) << text;
}

TEST(JsonReaderTest, rejectsNumbersOutsideTheGrammar)
{
    for (const char *number : {"0", "-0", "10", "1.5", "1e5", "1E+5", "-1.25e-7", "1e999"})
        EXPECT_TRUE(isObject(R"({"a":)"s + number + "}")) << number;
    for (const char *number :
         {"01", "+1", ".5", "1.", "1e", "1e+", "-", "--1", "0x10", "1_000", "q", "1q"})
        EXPECT_FALSE(isObject(R"({"a":)"s + number + "}")) << number;
}

TEST(JsonReaderTest, readsANumberOutOfRangeAsNull)
{
    EXPECT_EQ(partsOf(R"({"a":1e999,"b":1})", {"a", "b"}), R"({"a":null,"b":1})");
    EXPECT_EQ(partsOf("{\"a\":" + std::string(100'000, '9') + "}", {"a"}), R"({"a":null})");
}

TEST(JsonReaderTest, rejectsIllFormedUtf8Anywhere)
{
    EXPECT_FALSE(isObject("{\"a\":\"\xFF\"}"));
    EXPECT_FALSE(isObject("{\"a\":\"\xED\xA0\x80\"}"));
    EXPECT_FALSE(isObject("{\"\xC0\xAF\":1}"));
    EXPECT_TRUE(isObject("{\"a\":\"日本 👩‍👩‍👧‍👦\"}"));
}

TEST(JsonReaderTest, rejectsNulBytes)
{
    EXPECT_FALSE(isObject("{}\0"s));
    EXPECT_FALSE(isObject("{\"a\":1\0}"s));
    EXPECT_FALSE(isObject("{\"a\":\"\0\"}"s));
}

TEST(JsonReaderTest, readsAHundredThousandNestingLevels)
{
    const std::string open(100'000, '[');
    const std::string close(100'000, ']');
    EXPECT_EQ(partsOf("{\"deep\":" + open + close + ",\"a\":1}", {"a"}), R"({"a":1})");
    EXPECT_FALSE(isObject("{\"deep\":" + open));
    EXPECT_TRUE(jsonObject("{\"a\":" + open + close + "}", {"a"}));
}

TEST(JsonReaderTest, acceptsSixtyFourBitIntegers)
{
    const auto integerOf = [](const std::string &number) {
        const auto object = jsonObject("{\"n\":" + number + "}", {"n"});
        return exactInteger(member(*object, "n"));
    };
    EXPECT_EQ(integerOf("0"), 0);
    EXPECT_EQ(integerOf("-0"), 0);
    EXPECT_EQ(integerOf("-17"), -17);
    EXPECT_EQ(integerOf("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(integerOf("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
}

TEST(JsonReaderTest, acceptsNothingElseAsAnInteger)
{
    for (const char *value :
         {"9223372036854775808", "-9223372036854775809", "18446744073709551615",
          "18446744073709551616", "1.0", "1e3", "1.5", "true", "false", "null", "\"1\"", "[1]"})
        EXPECT_FALSE(exactInteger(member(*jsonObject("{\"n\":"s + value + "}", {"n"}), "n")))
            << value;
    EXPECT_FALSE(exactInteger(nullptr));
}

TEST(JsonReaderTest, agreesWithTheLibraryOnDamagedDocuments)
{
    const std::string sound = R"({"a":[1,-2.5e3,{"b":"\u00e9\ud83d\ude00\n"}],"c":{"d":null},
        "e":"\ud83d\\\"\ude00 🗂️ 1️⃣ की","f":[[],{},true,false]} )";
    const std::string_view bytes = "{}[]:,\"\\uDde0159.-+tfn \n\x01\x80";
    std::mt19937 random(20'260'131);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    for (int round = 0; round < 20'000; ++round) {
        std::string text = sound;
        for (std::size_t change = 0; change <= below(3); ++change) {
            const std::size_t position = below(text.size());
            if (below(2) == 0)
                text.erase(position, 1 + below(4));
            else
                text.insert(position, 1, bytes[below(bytes.size())]);
        }
        const json expected = json::parse(withoutLoneSurrogates(text), nullptr, false);
        const auto read = jsonObject(text, {"a", "c", "e", "f"});
        ASSERT_EQ(read.has_value(), expected.is_object()) << text;
        for (const char *key : {"a", "c", "e", "f"}) {
            const JsonValue *const value = read ? member(*read, key) : nullptr;
            ASSERT_EQ(value != nullptr, expected.contains(key)) << text;
            if (value != nullptr) {
                ASSERT_EQ(libraryValue(*value), expected[key]) << text;
            }
        }
    }
}

TEST(JsonReaderTest, acceptsOnlyJsonWhiteSpaceBetweenTokens)
{
    EXPECT_EQ(partsOf("{\t\r\n \"a\"\r:\t1\t,\r\"b\":\r2}", {"a", "b"}), R"({"a":1,"b":2})");
    for (const char *space : {"\v", "\f", "~", "\u00A0"})
        EXPECT_FALSE(isObject("{" + std::string(space) + "}")) << space;
}

} // namespace Loadwick
