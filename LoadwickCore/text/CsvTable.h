#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Loadwick {

/// A table as comma-separated values by RFC 4180: UTF-8, every row ended by CR LF, a cell quoted
/// where necessary. A text cell that a spreadsheet would take for a formula is prefixed with an
/// apostrophe; a figure is not.
class CsvTable
{
public:
    CsvTable &text(std::string_view cell);
    CsvTable &figure(std::int64_t cell);
    CsvTable &empty();
    void endRow();

    [[nodiscard]] const std::string &bytes() const noexcept { return m_bytes; }

private:
    void add(std::string_view cell);

    std::string m_bytes;
    bool m_isRowBegun = false;
};

} // namespace Loadwick
