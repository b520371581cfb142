#include "text/TextLines.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace Loadwick {

namespace {

constexpr std::string_view nextLine = "\xC2\x85";
constexpr std::string_view separatorHead = "\xE2\x80"; // U+2028 and U+2029 end in A8 and A9

/// Whether a byte is printable ASCII, and so cannot begin a line break.
constexpr bool isPlain(char byte) noexcept
{
    return static_cast<unsigned char>(byte - ' ') < 0x80 - ' ';
}

/// Number of plain bytes at the head of a text, compared eight at a time while possible.
std::size_t plainHead(std::string_view text) noexcept
{
    constexpr std::uint64_t everyByte = 0x0101010101010101;
    std::size_t index = 0;
    for (std::uint64_t eight = 0; text.size() - index >= sizeof eight; index += sizeof eight) {
        std::memcpy(&eight, text.data() + index, sizeof eight);
        // The high bit is set in the difference below a space, in the byte itself beyond ASCII.
        if ((((eight - everyByte * ' ') | eight) & (everyByte * 0x80)) != 0)
            break;
    }
    while (index < text.size() && isPlain(text[index]))
        ++index;
    return index;
}

/// Bytes of the line break at `index`; 0 when there is none.
std::size_t breakLength(std::string_view text, std::size_t index) noexcept
{
    const std::string_view rest = text.substr(index);
    switch (rest.front()) {
    case '\n':
    case '\v':
    case '\f':
        return 1;
    case '\r':
        return rest.starts_with("\r\n") ? 2 : 1;
    case '\xC2':
        return rest.starts_with(nextLine) ? nextLine.size() : 0;
    case '\xE2':
        return rest.starts_with(separatorHead) && rest.size() > 2 &&
                       (rest[2] == '\xA8' || rest[2] == '\xA9')
                   ? 3
                   : 0;
    default:
        return 0;
    }
}

/// Bytes of the line break that `text`, which is not empty, ends with; 0 when there is none.
std::size_t lastBreakLength(std::string_view text) noexcept
{
    switch (text.back()) {
    case '\n':
        return text.ends_with("\r\n") ? 2 : 1;
    case '\v':
    case '\f':
    case '\r':
        return 1;
    case '\x85':
        return text.ends_with(nextLine) ? nextLine.size() : 0;
    case '\xA8':
    case '\xA9':
        return text.substr(0, text.size() - 1).ends_with(separatorHead) ? 3 : 0;
    default:
        return 0;
    }
}

} // namespace

std::optional<std::string_view> takeLine(std::string_view &rest) noexcept
{
    if (rest.empty())
        return std::nullopt;
    for (std::size_t end = plainHead(rest); end < rest.size();
         end += 1 + plainHead(rest.substr(end + 1))) {
        const std::size_t length = breakLength(rest, end);
        if (length > 0) {
            const std::string_view line = rest.substr(0, end);
            rest.remove_prefix(end + length);
            return line;
        }
    }
    const std::string_view line = rest;
    rest.remove_prefix(rest.size());
    return line;
}

std::optional<std::string_view> takeLastLine(std::string_view &rest) noexcept
{
    if (rest.empty())
        return std::nullopt;
    rest.remove_suffix(lastBreakLength(rest));
    std::size_t start = rest.size();
    while (start > 0 && lastBreakLength(rest.substr(0, start)) == 0)
        --start;
    const std::string_view line = rest.substr(start);
    rest.remove_suffix(line.size());
    return line;
}

} // namespace Loadwick
