#pragma once

#include <cstddef>
#include <optional>

namespace Loadwick {

/// The lines of a grouped bar chart, one below the other: each category has one line for its name
/// and below it one for each column, in the order of the columns, whether it has a bar or not.
class GroupedRows
{
public:
    struct Line
    {
        std::size_t row;                   ///< the category
        std::optional<std::size_t> column; ///< nothing for the category's name

        friend bool operator==(const Line &, const Line &) = default;
    };

    constexpr GroupedRows() = default;
    constexpr GroupedRows(std::size_t rowCount, std::size_t columnCount) noexcept
        : m_rowCount(rowCount), m_columnCount(columnCount)
    {}

    [[nodiscard]] constexpr std::size_t lineCount() const noexcept
    {
        return m_rowCount * (m_columnCount + 1);
    }

    /// `index` is less than `lineCount()`.
    [[nodiscard]] constexpr Line line(std::size_t index) const noexcept
    {
        const std::size_t place = index % (m_columnCount + 1);
        return {index / (m_columnCount + 1), place == 0 ? std::nullopt : std::optional(place - 1)};
    }

private:
    std::size_t m_rowCount = 0;
    std::size_t m_columnCount = 0;
};

} // namespace Loadwick
