#include "history/ScanTables.h"

#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "history/ScanHistory.h"
#include "text/CsvTable.h"
#include "text/DateText.h"
#include "text/Fatal.h"

namespace Loadwick::ScanTables {
namespace {

void addHeader(CsvTable &table)
{
    for (const std::string_view name : {"Repository", "Path", "Date (UTC)", "Total tokens", "Band"})
        table.text(name);
}

void addTotal(CsvTable &table, const RecordedScan &scan)
{
    table.text(scan.repositoryName)
        .text(scan.repositoryPath)
        .text(IsoDate::text(scan.date))
        .figure(scan.total)
        .text(scan.band().title());
}

/// The categories of all scans, each a column.
class CategoryColumns
{
public:
    explicit CategoryColumns(std::span<const RecordedScan> scans)
        : m_names(ScanHistory::categoryAxis(scans))
    {
        for (const std::string &name : m_names)
            m_columns.emplace(name, m_columns.size());
    }

    void addHeads(CsvTable &table) const
    {
        for (const std::string &name : m_names)
            table.text(name + " tokens (estimate)");
    }

    void addTokens(CsvTable &table, const RecordedScan &scan) const
    {
        std::vector<std::optional<std::int64_t>> cells(m_names.size());
        for (const RecordedCategory &category : scan.categories) {
            auto &cell = cells[m_columns.at(category.name)];
            cell = checkedSum(cell.value_or(0), category.tokens);
        }
        for (const auto &cell : cells)
            cell ? table.figure(*cell) : table.empty();
    }

private:
    std::vector<std::string> m_names;
    std::unordered_map<std::string_view, std::size_t> m_columns;
};

} // namespace

std::string totals(std::span<const RecordedScan> scans)
{
    CsvTable table;
    addHeader(table);
    table.endRow();
    for (const RecordedScan &scan : scans) {
        addTotal(table, scan);
        table.endRow();
    }
    return table.bytes();
}

std::string categories(std::span<const RecordedScan> scans)
{
    const CategoryColumns columns(scans);
    CsvTable table;
    addHeader(table);
    columns.addHeads(table);
    table.endRow();
    for (const RecordedScan &scan : scans) {
        addTotal(table, scan);
        columns.addTokens(table, scan);
        table.endRow();
    }
    return table.bytes();
}

} // namespace Loadwick::ScanTables
