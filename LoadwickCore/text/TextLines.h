#pragma once

#include <optional>
#include <string_view>

namespace Loadwick {

/// Takes the first line off `rest` together with its line break: a line feed, carriage return (both
/// together count as one), vertical tab, form feed, U+0085, U+2028 or U+2029. Nothing once `rest`
/// is empty. A view into the text.
[[nodiscard]] std::optional<std::string_view> takeLine(std::string_view &rest) noexcept;

/// The same from the end: the lines that `takeLine` returns, last one first.
[[nodiscard]] std::optional<std::string_view> takeLastLine(std::string_view &rest) noexcept;

} // namespace Loadwick
