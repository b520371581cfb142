#include "text/NamedValue.h"

#include "support/EnumerationNames.h"

#include <array>

#include <gtest/gtest.h>

namespace Loadwick {

namespace {

class Season
{
public:
    enum Value
    {
        spring,
        summer
    };
    static constexpr std::array all{spring, summer};

    constexpr Season(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    [[nodiscard]] std::string_view rawValue() const noexcept
    {
        return m_value == spring ? "spring" : "summer";
    }
    [[nodiscard]] static std::optional<Season> fromRawValue(std::string_view text) noexcept
    {
        return valueNamed<Season>(text);
    }

private:
    Value m_value;
};

} // namespace

TEST(NamedValueTest, isFoundByItsNameAlone)
{
    expectNames<Season>({"spring", "summer"});
}

} // namespace Loadwick
