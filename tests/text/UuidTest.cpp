#include "text/Uuid.h"

#include <array>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace Loadwick {

TEST(UuidTest, readsEitherCaseAndWritesUpperCase)
{
    const std::string upper = "6F1C2B0A-8E55-4C2D-9A61-3B7D1E0F4A92";
    const auto fromUpper = Uuid::fromText(upper);
    const auto fromLower = Uuid::fromText("6f1c2b0a-8e55-4c2d-9a61-3b7d1e0f4a92");
    ASSERT_TRUE(fromUpper && fromLower);
    EXPECT_EQ(fromUpper->text(), upper);
    EXPECT_EQ(*fromUpper, *fromLower);
}

TEST(UuidTest, readsTheLowestAndTheHighest)
{
    for (const std::string text :
         {"00000000-0000-0000-0000-000000000000", "FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF"}) {
        const auto uuid = Uuid::fromText(text);
        ASSERT_TRUE(uuid) << text;
        EXPECT_EQ(uuid->text(), text);
    }
}

TEST(UuidTest, readsOnlyTheCanonicalForm)
{
    for (const std::string text : {
             "",
             "6F1C2B0A8E554C2D9A613B7D1E0F4A92",
             "{6F1C2B0A-8E55-4C2D-9A61-3B7D1E0F4A92}",
             "6F1C2B0A-8E55-4C2D-9A61-3B7D1E0F4A9",
             "6F1C2B0A-8E55-4C2D-9A61-3B7D1E0F4A922",
             " 6F1C2B0A-8E55-4C2D-9A61-3B7D1E0F4A9",
             "6F1C2B0A-8E55-4C2D-9A61-3B7D1E0F4A9G",
             "6F1C2B0A-8E55-4C2D-9A61-3B7D1E0F4A9g",
             "6F1C2B0A-8E55-4C2D-9A613-B7D1E0F4A92",
             "6F1C2B0A_8E55_4C2D_9A61_3B7D1E0F4A92",
             "6F1C2B0-A8E55-4C2D-9A61-3B7D1E0F4A92",
             "-6F1C2B0A-8E55-4C2D-9A61-3B7D1E0F4A9",
             "6F1C2B0A-8E55-4C2D-9A61-3B7D1E0F4A\xC3\xA9",
         })
        EXPECT_FALSE(Uuid::fromText(text)) << text;
}

TEST(UuidTest, makesDistinctRandomIdentifiers)
{
    std::set<Uuid> seen;
    for (int count = 0; count < 1'000; ++count)
        seen.insert(Uuid::random());
    EXPECT_EQ(seen.size(), 1'000U);
}

TEST(UuidTest, marksRandomIdentifiersAsVersionFour)
{
    for (int count = 0; count < 1'000; ++count) {
        const std::string text = Uuid::random().text();
        ASSERT_EQ(text.size(), 36U);
        EXPECT_EQ(text[14], '4');
        EXPECT_NE(std::string("89AB").find(text[19]), std::string::npos);
        EXPECT_EQ(Uuid::fromText(text)->text(), text);
    }
}

TEST(UuidTest, takesEveryOtherDigitAtRandom)
{
    std::array<std::set<char>, 36> digits;
    std::set<int> differences; // between two digits that a slip could take from the same byte
    for (int count = 0; count < 2'000; ++count) {
        const std::string text = Uuid::random().text();
        for (std::size_t index = 0; index < digits.size(); ++index)
            digits[index].insert(text[index]);
        differences.insert(text[20] - text[22]);
    }
    for (std::size_t index = 0; index < digits.size(); ++index) {
        const bool isFixed = std::set<std::size_t>{8, 13, 14, 18, 23}.contains(index);
        const std::size_t expected = isFixed ? 1 : index == 19 ? 4 : 16;
        EXPECT_EQ(digits[index].size(), expected) << index;
    }
    EXPECT_GT(differences.size(), 1U);
}

} // namespace Loadwick
