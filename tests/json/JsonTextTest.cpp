#include "json/JsonText.h"

#include <random>

#include <gtest/gtest.h>

namespace Loadwick {

using nlohmann::json;
using namespace std::string_literals;

namespace {

bool isObject(std::string_view text)
{
    return jsonObject(text, {}).has_value();
}

} // namespace

TEST(JsonTextTest, keepsTheNamedMembersOnly)
{
    EXPECT_EQ(jsonObject(R"({"a":1,"b":[true,null,"x",{"y":-2}],"c":{"d":1.5}})", {"b", "c", "e"}),
              json::parse(R"({"b":[true,null,"x",{"y":-2}],"c":{"d":1.5}})"));
    EXPECT_EQ(jsonObject(R"({"a":1})", {}), json::object());
}

TEST(JsonTextTest, keepsPartsOfAMember)
{
    EXPECT_EQ(jsonObject(R"({"message":{"id":"m","usage":{"n":[1,2]},"content":[{"usage":3}]},
                             "usage":4,"type":"assistant"})",
                         {"type", "message.usage"}),
              json::parse(R"({"message":{"usage":{"n":[1,2]}},"type":"assistant"})"));
}

TEST(JsonTextTest, keepsScalarsOnlyWhereTheyAreAskedFor)
{
    const std::string_view text =
        R"({"a":[1],"b":{"c":{},"d":2},"e":"x","f":true,"g":null,"h":[]})";
    const auto object = jsonObjectOfScalars(text, {"a", "b.c", "b.d", "e", "f", "g", "h.i"});
    EXPECT_EQ(object, nlohmann::json::parse(R"({"b":{"d":2},"e":"x","f":true,"g":null})"));
    EXPECT_EQ(jsonObjectOfScalars(R"({"a":1,"a":[2]})", {"a"}), nlohmann::json::object());
    EXPECT_EQ(jsonObjectOfScalars(R"({"a":[2],"a":1})", {"a"}), nlohmann::json({{"a", 1}}));
    EXPECT_FALSE(jsonObjectOfScalars(R"({"a":[1,}]})", {"a"}));
}

TEST(JsonTextTest, takesADottedKeyForNoPath)
{
    EXPECT_EQ(jsonObject(R"({"message.usage":1})", {"message.usage"}), json::object());
}

TEST(JsonTextTest, findsAKeyHoweverItIsSpelled)
{
    EXPECT_EQ(jsonObject(R"({"\u0061b":1})", {"ab"}), json::parse(R"({"ab":1})"));
    EXPECT_EQ(jsonObject("{\"" + std::string(5000, 'a') + "\":1,\"a\":2}", {"a"}),
              json::parse(R"({"a":2})"));
}

TEST(JsonTextTest, letsTheLastOfEqualKeysWin)
{
    EXPECT_EQ(jsonObject(R"({"a":1,"a":"x","a":[2]})", {"a"}), json::parse(R"({"a":[2]})"));
    EXPECT_EQ(jsonObject(R"({"a":{"b":1,"c":2,"b":3}})", {"a"}),
              json::parse(R"({"a":{"b":3,"c":2}})"));
}

TEST(JsonTextTest, letsTheLastOfEqualKeysWinOnThePath)
{
    EXPECT_EQ(jsonObject(R"({"m":{"u":1},"m":5})", {"m.u"}), json::object());
    EXPECT_EQ(jsonObject(R"({"m":{"u":1},"m":[{"u":2}]})", {"m.u"}), json::object());
    EXPECT_EQ(jsonObject(R"({"m":{"u":1},"m":{}})", {"m.u"}), json::parse(R"({"m":{}})"));
    EXPECT_EQ(jsonObject(R"({"m":7,"m":{"u":1,"u":2}})", {"m.u"}), json::parse(R"({"m":{"u":2}})"));
}

TEST(JsonTextTest, trimsUnicodeWhiteSpaceAroundTheDocument)
{
    EXPECT_TRUE(isObject(" \t\r\n{}\n"));
    EXPECT_TRUE(isObject("\u00A0\u2028\u0085\v\f{}\u3000"));
    EXPECT_FALSE(isObject("{\u00A0}"));
}

TEST(JsonTextTest, takesAByteOrderMarkForNoWhiteSpace)
{
    EXPECT_FALSE(isObject("\uFEFF{}"));
    EXPECT_FALSE(isObject("{}\uFEFF"));
    EXPECT_FALSE(isObject(" \uFEFF{}"));
}

TEST(JsonTextTest, isNothingWhenTheTopLevelIsNoObject)
{
    for (const char *text : {"[]", "[{}]", "1", "\"x\"", "null", "true", "", " "})
        EXPECT_FALSE(isObject(text)) << text;
}

TEST(JsonTextTest, isNothingWhenTheTextIsNotJson)
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

TEST(JsonTextTest, readsNumbersByTheGrammarOnly)
{
    for (const char *number : {"0", "-0", "10", "1.5", "1e5", "1E+5", "-1.25e-7", "1e999"})
        EXPECT_TRUE(isObject(R"({"a":)"s + number + "}")) << number;
    for (const char *number : {"01", "+1", ".5", "1.", "1e", "1e+", "-", "--1", "0x10", "1_000"})
        EXPECT_FALSE(isObject(R"({"a":)"s + number + "}")) << number;
}

TEST(JsonTextTest, keepsANumberBeyondAllBoundsAsNull)
{
    EXPECT_EQ(jsonObject(R"({"a":1e999,"b":1})", {"a", "b"}), json::parse(R"({"a":null,"b":1})"));
    EXPECT_EQ(jsonObject("{\"a\":" + std::string(100'000, '9') + "}", {"a"}),
              json::parse(R"({"a":null})"));
}

TEST(JsonTextTest, refusesBytesThatAreNotUtf8WhereverTheyStand)
{
    EXPECT_FALSE(isObject("{\"a\":\"\xFF\"}"));
    EXPECT_FALSE(isObject("{\"a\":\"\xED\xA0\x80\"}"));
    EXPECT_FALSE(isObject("{\"\xC0\xAF\":1}"));
    EXPECT_TRUE(isObject("{\"a\":\"日本 👩‍👩‍👧‍👦\"}"));
}

TEST(JsonTextTest, refusesNulBytes)
{
    EXPECT_FALSE(isObject("{}\0"s));
    EXPECT_FALSE(isObject("{\"a\":1\0}"s));
    EXPECT_FALSE(isObject("{\"a\":\"\0\"}"s));
}

TEST(JsonTextTest, readsNestingOfAHundredThousandLevels)
{
    const std::string open(100'000, '[');
    const std::string close(100'000, ']');
    EXPECT_EQ(jsonObject("{\"deep\":" + open + close + ",\"a\":1}", {"a"}),
              json::parse(R"({"a":1})"));
    EXPECT_FALSE(isObject("{\"deep\":" + open));
    EXPECT_TRUE(jsonObject("{\"a\":" + open + close + "}", {"a"}));
}

TEST(JsonTextTest, givesMembersOfObjectsOnly)
{
    const json object = json::parse(R"({"a":1,"b":null})");
    ASSERT_NE(member(object, "a"), nullptr);
    EXPECT_EQ(*member(object, "a"), 1);
    EXPECT_NE(member(object, "b"), nullptr);
    EXPECT_EQ(member(object, "c"), nullptr);
    EXPECT_EQ(member(json::array({1}), "a"), nullptr);
    EXPECT_EQ(member(json(), "a"), nullptr);
}

TEST(JsonTextTest, takesIntegersOfSixtyFourBits)
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

TEST(JsonTextTest, takesNothingElseForAnInteger)
{
    for (const char *value :
         {"9223372036854775808", "-9223372036854775809", "18446744073709551615",
          "18446744073709551616", "1.0", "1e3", "1.5", "true", "false", "null", "\"1\"", "[1]"})
        EXPECT_FALSE(exactInteger(member(*jsonObject("{\"n\":"s + value + "}", {"n"}), "n")))
            << value;
    EXPECT_FALSE(exactInteger(nullptr));
}

TEST(JsonTextTest, agreesWithTheLibraryOnDamagedDocuments)
{
    const std::string sound = R"({"a":[1,-2.5e3,{"b":"\u00e9\ud83d\ude00\n"}],"c":{"d":null},)"
                              R"("e":"x\"y","f":[[],{},true,false]} )";
    const std::string_view bytes = "{}[]:,\"\\ue0159.-+tfn \n\x01\x80";
    std::mt19937 random(20'260'131);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    for (int round = 0; round < 20'000; ++round) {
        std::string text = sound;
        for (std::size_t change = 0; change <= below(3); ++change) {
            const std::size_t place = below(text.size());
            if (below(2) == 0)
                text.erase(place, 1 + below(4));
            else
                text.insert(place, 1, bytes[below(bytes.size())]);
        }
        const json expected = json::parse(text, nullptr, false);
        const auto read = jsonObject(text, {"a", "c", "e", "f"});
        ASSERT_EQ(read.has_value(), expected.is_object()) << text;
        if (!read)
            continue;
        for (const char *key : {"a", "c", "e", "f"}) {
            ASSERT_EQ(member(*read, key) != nullptr, expected.contains(key)) << text;
            if (expected.contains(key)) {
                ASSERT_EQ(*member(*read, key), expected[key]) << text;
            }
        }
    }
}

TEST(JsonTextTest, takesEveryWhiteSpaceOfJsonBetweenTokensAndNoOther)
{
    EXPECT_EQ(jsonObject("{\t\r\n \"a\"\r:\t1\t,\r\"b\":\r2}", {"a", "b"}),
              json::parse(R"({"a":1,"b":2})"));
    for (const char *space : {"\v", "\f", "\u00A0"})
        EXPECT_FALSE(isObject("{" + std::string(space) + "}")) << space;
}

} // namespace Loadwick
