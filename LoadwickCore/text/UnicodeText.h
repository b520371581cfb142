#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// UTF-8 text by the Unicode tables. Ill-formed bytes are never an error: each maximal ill-formed
/// part counts as one U+FFFD.
namespace Loadwick {

/// Whether `bytes` is well-formed UTF-8 (no surrogates, no overlong forms). Empty text is.
[[nodiscard]] bool isUtf8(std::string_view bytes) noexcept;

/// `bytes` with every ill-formed part replaced by U+FFFD.
[[nodiscard]] std::string repairedUtf8(std::string_view bytes);

/// `text` without one U+FEFF at its beginning, which some editors put there. A view into `text`.
[[nodiscard]] std::string_view withoutByteOrderMark(std::string_view text) noexcept;

/// Whether a code point is Unicode white space or a line break (U+0085, U+2028, U+2029 included).
[[nodiscard]] bool isWhiteSpace(char32_t codePoint) noexcept;

/// `text` without white space and line breaks at both ends. A view into `text`.
[[nodiscard]] std::string_view trimmed(std::string_view text) noexcept;

/// `text` without spaces and tabs at both ends; line breaks stay. A view into `text`.
[[nodiscard]] std::string_view trimmedSpaces(std::string_view text) noexcept;

/// `text` in lower case by the full Unicode mapping, independent of any locale. Throws
/// `std::bad_alloc`.
[[nodiscard]] std::string lowercased(std::string_view text);

/// Whether `text` holds nothing but letters, marks and numeric characters (Unicode categories L, M
/// and N).
[[nodiscard]] bool isLettersAndNumbers(std::string_view text) noexcept;

/// The letters and numeric characters of `text` (Unicode categories L and N) with the marks (M)
/// right behind them, in order. The marks that only choose how a symbol is drawn (U+FE00 to U+FE0F,
/// U+20E3) are dropped, and so are ill-formed bytes.
[[nodiscard]] std::string lettersAndNumbers(std::string_view text);

/// Sets `key` to `lettersAndNumbers` of `text` in lower case. `key` keeps its memory from one text
/// to the next.
void setSearchKey(std::string &key, std::string_view text);

/// The first `limit` bytes (fewer than 2^31) of `text`, or up to three fewer, so that no code point
/// is cut in two; all of a shorter text. A view into `text`.
[[nodiscard]] std::string_view firstBytes(std::string_view text, std::size_t limit) noexcept;

/// Bytes of the first `limit` user-perceived characters (extended grapheme clusters, UAX #29)
/// of `text`; `text.size()` when it has no more than that. Reads no further than necessary. Throws
/// `std::bad_alloc` once the rules are loaded.
[[nodiscard]] std::size_t byteCountOfCharacters(std::string_view text, std::size_t limit);

/// Loads the rules for counting characters, once per program. ICU ends the program if memory runs
/// out meanwhile, so call it while there is some.
void loadCharacterRules();

} // namespace Loadwick
