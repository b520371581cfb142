#pragma once

#include <cstdint>
#include <string>

namespace Loadwick {
struct TextLocale;
}

/// Figures as text.
namespace Loadwick::NumberText {

/// An integer with the locale's grouping, digits and minus sign: 30,000 in English.
[[nodiscard]] std::string grouped(std::int64_t number, const TextLocale &locale);

/// The same with the locale's plus sign on anything that is not negative: +0, +1,234, -80.
[[nodiscard]] std::string groupedChange(std::int64_t change, const TextLocale &locale);

/// A number with exactly one decimal after a point and no grouping, as "%.1f" writes it in the C
/// locale (ties of the binary value go to even).
[[nodiscard]] std::string oneDecimal(double number);

} // namespace Loadwick::NumberText
