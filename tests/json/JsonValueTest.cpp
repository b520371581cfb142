#include "json/JsonValue.h"

#include <cstddef>
#include <utility>

#include <gtest/gtest.h>

namespace Loadwick {

namespace {

JsonValue integer(std::int64_t number)
{
    return JsonValue(number);
}

template<typename... Items>
JsonValue array(Items &&...items)
{
    JsonValue::Array all;
    (all.push_back(std::forward<Items>(items)), ...);
    return JsonValue(std::move(all));
}

JsonValue object(std::string key, JsonValue value)
{
    JsonValue::Object members;
    members.push_back({"before", array(integer(1), integer(2))});
    members.push_back({std::move(key), std::move(value)});
    return JsonValue(std::move(members));
}

JsonValue nested(std::size_t depth)
{
    JsonValue value = integer(1);
    for (std::size_t level = 0; level < depth; ++level)
        value = level % 2 == 0 ? array(JsonValue("text"), std::move(value), integer(2))
                               : object("key", std::move(value));
    return value;
}

} // namespace

TEST(JsonValueTest, isDestroyedAtAnyDepth)
{
    for (const std::size_t depth : {0U, 1U, 2U, 5U, 200'000U})
        EXPECT_EQ(nested(depth).as<std::int64_t>() != nullptr, depth == 0);
}

TEST(JsonValueTest, isDestroyedAtAnyWidth)
{
    JsonValue value = array(array(), JsonValue(JsonValue::Object()), JsonValue());
    for (int item = 0; item < 100'000; ++item)
        value.as<JsonValue::Array>()->push_back(object("names", array(JsonValue("a"), nested(3))));
    EXPECT_EQ(value.as<JsonValue::Array>()->size(), 100'003U);
}

TEST(JsonValueTest, movesItsWholeContent)
{
    JsonValue first = object("a", integer(1));
    JsonValue second = std::move(first);
    EXPECT_NE(first.as<std::nullptr_t>(), nullptr); // NOLINT(bugprone-use-after-move)
    JsonValue third = nested(3);
    third = std::move(second);
    JsonValue &itself = third;
    third = std::move(itself);
    EXPECT_EQ(exactInteger(member(third, "a")), 1);
}

TEST(JsonValueTest, returnsItsContentOnlyAsItsOwnType)
{
    const JsonValue text("words");
    EXPECT_EQ(*text.as<std::string>(), "words");
    EXPECT_EQ(text.as<bool>(), nullptr);
    EXPECT_TRUE(*JsonValue(true).as<bool>());
    EXPECT_EQ(*JsonValue(1.5).as<double>(), 1.5);
    EXPECT_NE(JsonValue().as<std::nullptr_t>(), nullptr);
}

TEST(JsonValueTest, onlyObjectsHaveMembers)
{
    const JsonValue value = object("a", JsonValue());
    EXPECT_NE(member(value, "a"), nullptr);
    EXPECT_NE(member(value, "before"), nullptr);
    for (const char *key : {"", "b", "aa"})
        EXPECT_EQ(member(value, key), nullptr) << key;
    EXPECT_EQ(member(array(integer(1)), "a"), nullptr);
    EXPECT_EQ(member(JsonValue(), "a"), nullptr);
}

TEST(JsonValueTest, returnsTheLastDuplicateKey)
{
    EXPECT_EQ(exactInteger(member(object("before", integer(7)), "before")), 7);
}

TEST(JsonValueTest, changesAMemberInPlace)
{
    JsonValue value = object("a", JsonValue("old"));
    *member(value, "a") = integer(2);
    EXPECT_EQ(exactInteger(member(value, "a")), 2);
}

TEST(JsonValueTest, onlyStringsHaveText)
{
    const JsonValue text("words");
    EXPECT_EQ(*textOf(&text), "words");
    const JsonValue list = array(JsonValue("words"));
    EXPECT_EQ(textOf(&list), nullptr);
    EXPECT_EQ(textOf(nullptr), nullptr);
}

} // namespace Loadwick
