#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "text/NamedValue.h"

namespace Loadwick {

/// A page of the window's right column.
class AppPage
{
public:
    enum Value
    {
        overview,
        trends,
        compare
    };
    /// In sidebar order.
    static constexpr std::array all{overview, trends, compare};

    constexpr AppPage(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    /// The case's name, as in identifiers.
    [[nodiscard]] std::string_view rawValue() const noexcept;
    [[nodiscard]] static std::optional<AppPage> fromRawValue(std::string_view text) noexcept
    {
        return valueNamed<AppPage>(text);
    }

    [[nodiscard]] std::string_view title() const noexcept;
    /// The name of its symbol.
    [[nodiscard]] std::string_view symbol() const noexcept;

private:
    Value m_value;
};

} // namespace Loadwick
