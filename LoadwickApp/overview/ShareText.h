#pragma once

#include <cstdint>

#include <QString>

/// A row's share of the authoritative total, as text: a point before the one decimal in every
/// locale, never below 0.0% nor above 100.0%, and 0.0% when the total is below 1.
namespace Loadwick::ShareText {

/// "12.3%"
[[nodiscard]] QString percent(std::int64_t tokens, std::int64_t total);

/// "12.3% of total"
[[nodiscard]] QString ofTotal(std::int64_t tokens, std::int64_t total);

} // namespace Loadwick::ShareText
