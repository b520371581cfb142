#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace Loadwick {

/// Expects an enumeration class to have these names, in this order, and to read back only them.
template<typename Enumeration>
void expectNames(std::initializer_list<std::string_view> names)
{
    ASSERT_EQ(Enumeration::all.size(), names.size());
    std::size_t index = 0;
    for (const std::string_view name : names) {
        const Enumeration value = Enumeration::all[index++];
        EXPECT_EQ(value.rawValue(), name);
        EXPECT_EQ(Enumeration::fromRawValue(name), value);
        EXPECT_EQ(Enumeration::fromRawValue(std::string(name) + " "), std::nullopt) << name;
        std::string capitalised(name);
        capitalised[0] = static_cast<char>(capitalised[0] - 'a' + 'A');
        EXPECT_EQ(Enumeration::fromRawValue(capitalised), std::nullopt) << name;
    }
    EXPECT_EQ(Enumeration::fromRawValue(""), std::nullopt);
    EXPECT_EQ(Enumeration::fromRawValue("unknown"), std::nullopt);
}

} // namespace Loadwick
