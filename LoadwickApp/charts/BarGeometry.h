#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "history/RecordedScan.h"

namespace Loadwick {

/// The bars of a chart with a column per scan and a row per category. All columns share one axis of
/// categories and one scale of tokens, so that a category keeps its row and equal tokens are
/// equally long in every column.
class BarGeometry
{
public:
    BarGeometry() = default;

    /// `axis` names each category once, in row order. A scan's other categories are dropped;
    /// categories of one name are summed, and overflow ends the program.
    BarGeometry(std::vector<std::string> axis, std::span<const RecordedScan> scans);

    [[nodiscard]] std::size_t rowCount() const noexcept { return m_axis.size(); }
    [[nodiscard]] std::size_t columnCount() const noexcept { return m_columns.size(); }
    [[nodiscard]] const std::string &category(std::size_t row) const { return m_axis.at(row); }

    /// The tokens of one bar; nothing if the scan lacks the category, which differs from a bar of 0
    /// tokens.
    [[nodiscard]] std::optional<std::int64_t> tokens(std::size_t column, std::size_t row) const;

    [[nodiscard]] bool hasBars(std::size_t column) const { return !m_columns.at(column).empty(); }

    /// The end of the scale: the tokens of the longest bar, at least 1.
    [[nodiscard]] std::int64_t maximumRowTokens() const noexcept { return m_maximumRowTokens; }

    /// The share of the scale that a bar fills, 0 to 1.
    [[nodiscard]] double length(std::int64_t tokens) const noexcept;

private:
    /// By row.
    using Column = std::vector<std::pair<std::size_t, std::int64_t>>;

    std::vector<std::string> m_axis;
    std::vector<Column> m_columns;
    std::int64_t m_maximumRowTokens = 1;
};

} // namespace Loadwick
