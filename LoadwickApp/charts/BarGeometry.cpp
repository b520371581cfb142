#include "charts/BarGeometry.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <unordered_map>

#include "text/Fatal.h"

namespace Loadwick {
namespace {

using RowsByCategory = std::unordered_map<std::string_view, std::size_t>;

std::vector<std::pair<std::size_t, std::int64_t>> columnOf(const RecordedScan &scan,
                                                           const RowsByCategory &rows)
{
    std::map<std::size_t, std::int64_t> sums;
    for (const RecordedCategory &category : scan.categories) {
        const auto row = rows.find(category.name);
        if (row == rows.end())
            continue;
        std::int64_t &sum = sums[row->second];
        sum = checkedSum(sum, category.tokens);
    }
    return {sums.begin(), sums.end()};
}

} // namespace

BarGeometry::BarGeometry(std::vector<std::string> axis, std::span<const RecordedScan> scans)
    : m_axis(std::move(axis))
{
    RowsByCategory rows;
    for (std::size_t row = 0; row < m_axis.size(); ++row)
        rows.emplace(m_axis[row], row);
    m_columns.reserve(scans.size());
    for (const RecordedScan &scan : scans)
        m_columns.push_back(columnOf(scan, rows));
    for (const Column &column : m_columns) {
        for (const auto &[row, tokens] : column)
            m_maximumRowTokens = std::max(m_maximumRowTokens, tokens);
    }
}

std::optional<std::int64_t> BarGeometry::tokens(std::size_t column, std::size_t row) const
{
    const Column &bars = m_columns.at(column);
    const auto bar = std::lower_bound(
        bars.begin(), bars.end(), row,
        [](const auto &candidate, std::size_t wanted) { return candidate.first < wanted; });
    if (bar == bars.end() || bar->first != row)
        return std::nullopt;
    return bar->second;
}

double BarGeometry::length(std::int64_t tokens) const noexcept
{
    const double share = static_cast<double>(tokens) / static_cast<double>(m_maximumRowTokens);
    return std::clamp(share, 0.0, 1.0);
}

} // namespace Loadwick
