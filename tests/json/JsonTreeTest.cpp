#include "json/JsonTree.h"

#include <cstddef>
#include <new>
#include <utility>

#include <gtest/gtest.h>

#include "json/JsonText.h"

namespace Loadwick {

namespace {

using nlohmann::json;

json nested(std::size_t depth)
{
    json value = 1;
    for (std::size_t level = 0; level < depth; ++level)
        value = level % 2 == 0 ? json::array({"before", std::move(value)})
                               : json::object({{"a", 1}, {"b", std::move(value)}, {"c", {1, 2}}});
    return value;
}

} // namespace

TEST(JsonTreeTest, takesEveryKindOfValueApart)
{
    for (json value : {json(), json(1), json("text"), json(true), json::array(), json::object(),
                       json::array({1, "two", json::array(), json::object()}), nested(1), nested(2),
                       nested(5)}) {
        dismantle(value);
        EXPECT_TRUE(value.is_null());
    }
}

TEST(JsonTreeTest, takesApartWhatIsDeeperThanAnyStack)
{
    json value = nested(200'000);
    dismantle(value);
    EXPECT_TRUE(value.is_null());
}

TEST(JsonTreeTest, takesApartWhatIsWide)
{
    json value = json::array();
    for (int item = 0; item < 100'000; ++item)
        value.push_back({{"tokens", item}, {"names", {"a", "b"}}});
    dismantle(value);
    EXPECT_TRUE(value.is_null());
}

TEST(JsonTreeTest, handsItsValueOnAndKeepsNone)
{
    JsonTree first;
    first.value() = {{"a", {1, 2}}};
    JsonTree second = std::move(first);
    EXPECT_TRUE(second == json({{"a", {1, 2}}}));
    JsonTree third;
    third.value() = {{"old", {1}}};
    third = std::move(second);
    EXPECT_TRUE(third == json({{"a", {1, 2}}}));
    JsonTree &itself = third;
    third = std::move(itself);
    EXPECT_TRUE(third == json({{"a", {1, 2}}}));
}

TEST(JsonTreeTest, isReadLikeItsValue)
{
    JsonTree tree;
    tree.value() = {{"n", 7}};
    EXPECT_EQ(exactInteger(member(tree, "n")), 7);
}

} // namespace Loadwick
