#pragma once

#include <array>
#include <optional>
#include <string_view>

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

    /// In the order in which the sidebar lists them.
    static const std::array<AppPage, 3> all;

    constexpr AppPage(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    /// The case's name, as in identifiers.
    [[nodiscard]] std::string_view rawValue() const noexcept;
    [[nodiscard]] static std::optional<AppPage> fromRawValue(std::string_view text) noexcept;

    [[nodiscard]] std::string_view title() const noexcept;

    /// The name of its picture.
    [[nodiscard]] std::string_view symbol() const noexcept;

private:
    Value m_value;
};

} // namespace Loadwick
