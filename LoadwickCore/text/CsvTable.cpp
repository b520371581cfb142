#include "text/CsvTable.h"

namespace Loadwick {
namespace {

/// Some spreadsheets skip a tab and a carriage return before they look.
constexpr std::string_view formulaStarts = "=+-@\t\r";

bool looksLikeFormula(std::string_view cell)
{
    return !cell.empty() && formulaStarts.find(cell.front()) != std::string_view::npos;
}

std::string inQuotes(std::string_view cell)
{
    std::string quoted = "\"";
    for (const char letter : cell)
        quoted.append(letter == '"' ? 2 : 1, letter);
    return quoted + '"';
}

} // namespace

CsvTable &CsvTable::text(std::string_view cell)
{
    std::string harmless(cell);
    if (looksLikeFormula(cell))
        harmless.insert(0, 1, '\'');
    const bool isPlain = harmless.find_first_of(",\"\r\n") == std::string::npos;
    add(isPlain ? harmless : inQuotes(harmless));
    return *this;
}

CsvTable &CsvTable::figure(std::int64_t cell)
{
    add(std::to_string(cell));
    return *this;
}

CsvTable &CsvTable::empty()
{
    add({});
    return *this;
}

void CsvTable::endRow()
{
    m_bytes += "\r\n";
    m_isRowBegun = false;
}

void CsvTable::add(std::string_view cell)
{
    if (m_isRowBegun)
        m_bytes += ',';
    m_bytes += cell;
    m_isRowBegun = true;
}

} // namespace Loadwick
