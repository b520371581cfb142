#pragma once

#include <array>
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

    /// In the order of the sidebar.
    static const std::array<AppPage, 3> all;

    constexpr AppPage(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    /// The enumerator's name, as in identifiers.
    [[nodiscard]] constexpr std::string_view rawValue() const noexcept { return row().rawValue; }
    [[nodiscard]] constexpr std::string_view title() const noexcept { return row().title; }
    /// The name of its symbol.
    [[nodiscard]] constexpr std::string_view symbol() const noexcept { return row().symbol; }

private:
    struct Row
    {
        std::string_view rawValue;
        std::string_view title;
        std::string_view symbol;
    };

    static constexpr std::array<Row, 3> rows = {{
        {"overview", "Overview", "square.grid.2x2"},
        {"trends", "Trends", "chart.line.uptrend.xyaxis"},
        {"compare", "Compare", "rectangle.split.2x1"},
    }};

    [[nodiscard]] constexpr const Row &row() const noexcept { return rows[m_value]; }

    Value m_value;
};

inline constexpr std::array<AppPage, 3> AppPage::all = {overview, trends, compare};

} // namespace Loadwick
