#include "history/ScanTables.h"

#include <optional>
#include <string_view>
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

std::optional<std::int64_t> tokensOf(const RecordedScan &scan, std::string_view name)
{
    std::optional<std::int64_t> tokens;
    for (const RecordedCategory &category : scan.categories)
        if (category.name == name)
            tokens = checkedSum(tokens.value_or(0), category.tokens);
    return tokens;
}

void addCategories(CsvTable &table, const RecordedScan &scan, std::span<const std::string> axis)
{
    for (const std::string &name : axis) {
        const auto tokens = tokensOf(scan, name);
        if (tokens)
            table.figure(*tokens);
        else
            table.empty();
    }
}

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
    const std::vector<std::string> axis = ScanHistory::categoryAxis(scans);
    CsvTable table;
    addHeader(table);
    for (const std::string &name : axis)
        table.text(name + " tokens (estimate)");
    table.endRow();
    for (const RecordedScan &scan : scans) {
        addTotal(table, scan);
        addCategories(table, scan, axis);
        table.endRow();
    }
    return table.bytes();
}

} // namespace Loadwick::ScanTables
