#include "text/UnicodeText.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>

#include <unicode/brkiter.h>
#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

namespace Loadwick {

namespace {

constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";

struct CodePoint
{
    UChar32 value; // negative when ill-formed
    std::size_t end;
};

/// Decodes the code point that begins at `start`; the ICU macro consumes a maximal ill-formed part.
CodePoint codePointAt(std::string_view text, std::size_t start) noexcept
{
    UChar32 value = 0;
    std::size_t index = start;
    U8_NEXT(reinterpret_cast<const std::uint8_t *>(text.data()), index, text.size(), value);
    return {value, index};
}

constexpr bool isAscii(char byte) noexcept
{
    return static_cast<unsigned char>(byte) < 0x80;
}

/// Number of ASCII bytes at the head of a text, compared eight at a time while possible.
std::size_t asciiHead(std::string_view text) noexcept
{
    constexpr std::uint64_t highBits = 0x8080808080808080;
    std::size_t index = 0;
    for (std::uint64_t eight = 0; text.size() - index >= sizeof eight; index += sizeof eight) {
        std::memcpy(&eight, text.data() + index, sizeof eight);
        if ((eight & highBits) != 0)
            break;
    }
    while (index < text.size() && isAscii(text[index]))
        ++index;
    return index;
}

bool isAscii(std::string_view text) noexcept
{
    return asciiHead(text) == text.size();
}

constexpr char lowercasedAscii(char byte) noexcept
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

constexpr bool isAsciiLetterOrNumber(char byte) noexcept
{
    return (byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'z') ||
           (byte >= 'A' && byte <= 'Z');
}

bool isLetterOrNumber(UChar32 value) noexcept
{
    return value >= 0 && (U_GET_GC_MASK(value) & (U_GC_L_MASK | U_GC_N_MASK)) != 0;
}

bool isMark(UChar32 value) noexcept
{
    return value >= 0 && (U_GET_GC_MASK(value) & U_GC_M_MASK) != 0;
}

/// Whether a mark asks for text or picture style, or draws a key around a digit.
constexpr bool isPresentationMark(UChar32 value) noexcept
{
    return (value >= 0xFE00 && value <= 0xFE0F) || value == 0x20E3;
}

/// Index of the first byte of the code point that ends before `end`.
std::size_t previousStart(std::string_view text, std::size_t end) noexcept
{
    const std::size_t lowest = end >= 4 ? end - 4 : 0;
    for (std::size_t start = end; start-- > lowest;) {
        const CodePoint point = codePointAt(text, start);
        if (point.end == end && point.value >= 0)
            return start;
    }
    return end - 1;
}

/// ICU has its data built in, so only memory can be missing.
void requireSuccess(UErrorCode status)
{
    if (U_FAILURE(status))
        throw std::bad_alloc();
}

} // namespace

bool isUtf8(std::string_view bytes) noexcept
{
    std::size_t index = asciiHead(bytes);
    while (index < bytes.size()) {
        const CodePoint point = codePointAt(bytes, index);
        if (point.value < 0)
            return false;
        index = point.end + asciiHead(bytes.substr(point.end));
    }
    return true;
}

std::string repairedUtf8(std::string_view bytes)
{
    if (isUtf8(bytes))
        return std::string(bytes);
    std::string repaired;
    repaired.reserve(bytes.size());
    for (std::size_t index = 0; index < bytes.size();) {
        const CodePoint point = codePointAt(bytes, index);
        const std::string_view piece = bytes.substr(index, point.end - index);
        repaired.append(point.value >= 0 ? piece : replacementCharacter);
        index = point.end;
    }
    return repaired;
}

std::string_view withoutByteOrderMark(std::string_view text) noexcept
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return text.starts_with(mark) ? text.substr(mark.size()) : text;
}

bool isWhiteSpace(char32_t codePoint) noexcept
{
    if (codePoint < 0x80)
        return codePoint == ' ' || (codePoint >= '\t' && codePoint <= '\r');
    return u_hasBinaryProperty(static_cast<UChar32>(codePoint), UCHAR_WHITE_SPACE) != 0;
}

std::string_view trimmed(std::string_view text) noexcept
{
    const auto isSpace = [](UChar32 value) {
        return value >= 0 && isWhiteSpace(static_cast<char32_t>(value));
    };
    while (!text.empty()) {
        const CodePoint point = codePointAt(text, 0);
        if (!isSpace(point.value))
            break;
        text.remove_prefix(point.end);
    }
    while (!text.empty()) {
        const std::size_t start = previousStart(text, text.size());
        if (!isSpace(codePointAt(text, start).value))
            break;
        text.remove_suffix(text.size() - start);
    }
    return text;
}

std::string_view trimmedSpaces(std::string_view text) noexcept
{
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return text.substr(text.size());
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string lowercased(std::string_view text)
{
    // Starting ICU costs as much as a whole line of ASCII here, and nearly every text is ASCII.
    if (isAscii(text)) {
        std::string lower(text);
        std::transform(lower.begin(), lower.end(), lower.begin(), lowercasedAscii);
        return lower;
    }
    std::string lower;
    icu::StringByteSink<std::string> sink(&lower, static_cast<std::int32_t>(text.size()));
    UErrorCode status = U_ZERO_ERROR;
    icu::CaseMap::utf8ToLower("", 0, icu::StringPiece(text.data(), static_cast<int>(text.size())),
                              sink, nullptr, status);
    requireSuccess(status);
    return lower;
}

bool isLettersAndNumbers(std::string_view text) noexcept
{
    for (std::size_t index = 0; index < text.size();) {
        const CodePoint point = codePointAt(text, index);
        if (!isLetterOrNumber(point.value) && !isMark(point.value))
            return false;
        index = point.end;
    }
    return true;
}

std::string lettersAndNumbers(std::string_view text)
{
    std::string kept;
    kept.reserve(text.size());
    bool isBehindKept = false;
    for (std::size_t index = 0; index < text.size();) {
        const CodePoint point = codePointAt(text, index);
        isBehindKept = isLetterOrNumber(point.value) || (isBehindKept && isMark(point.value));
        if (isBehindKept && !isPresentationMark(point.value))
            kept.append(text.substr(index, point.end - index));
        index = point.end;
    }
    return kept;
}

void setSearchKey(std::string &key, std::string_view text)
{
    if (!isAscii(text)) {
        key = lettersAndNumbers(lowercased(text));
        return;
    }
    key.resize(text.size());
    std::size_t size = 0;
    for (const char byte : text) {
        key[size] = lowercasedAscii(byte);
        if (isAsciiLetterOrNumber(byte))
            ++size;
    }
    key.resize(size);
}

std::string_view firstBytes(std::string_view text, std::size_t limit) noexcept
{
    if (text.size() <= limit)
        return text;
    auto end = static_cast<std::int32_t>(limit);
    U8_SET_CP_START(reinterpret_cast<const std::uint8_t *>(text.data()), 0, end);
    return text.substr(0, static_cast<std::size_t>(end));
}

std::size_t byteCountOfCharacters(std::string_view text, std::size_t limit)
{
    UErrorCode status = U_ZERO_ERROR;
    UText source = UTEXT_INITIALIZER;
    const std::unique_ptr<UText, decltype(&utext_close)> closing(&source, utext_close);
    utext_openUTF8(&source, text.data(), static_cast<std::int64_t>(text.size()), &status);
    const std::unique_ptr<icu::BreakIterator> boundaries(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    requireSuccess(status);
    boundaries->setText(&source, status);
    requireSuccess(status);
    std::int32_t end = 0;
    for (std::size_t count = 0; count < limit; ++count) {
        const std::int32_t next = boundaries->next();
        if (next == icu::BreakIterator::DONE)
            break;
        end = next;
    }
    return static_cast<std::size_t>(end);
}

void loadCharacterRules()
{
    static_cast<void>(byteCountOfCharacters("a", 1));
}

} // namespace Loadwick
