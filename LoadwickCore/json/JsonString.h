#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The inside of a JSON string literal (RFC 8259), which may be a gigabyte long: it is checked
/// where it stands and copied only for those who want it.
namespace Loadwick {

/// Index of the quotation mark that ends the literal whose first character is at `start`. Nothing
/// when the text ends first, or the literal holds a control character, an unknown escape or half a
/// surrogate pair. The text must be UTF-8; that is not checked here.
[[nodiscard]] std::optional<std::size_t> jsonStringEnd(std::string_view text,
                                                       std::size_t start) noexcept;

/// The text that `literal`, checked by `jsonStringEnd`, stands for. Never longer than the literal.
[[nodiscard]] std::string jsonStringText(std::string_view literal);

} // namespace Loadwick
