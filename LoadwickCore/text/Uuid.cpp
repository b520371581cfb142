#include "text/Uuid.h"

#include <cstddef>

#include <unistd.h>
#if defined(__APPLE__)
#include <sys/random.h>
#endif

#include "text/Fatal.h"

namespace Loadwick {

namespace {

constexpr std::size_t textSize = 36;

constexpr bool isHyphenIndex(std::size_t index) noexcept
{
    return index == 8 || index == 13 || index == 18 || index == 23;
}

/// The value of a hexadecimal digit; -1 for anything else.
constexpr int digitValue(char digit) noexcept
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    if (digit >= 'A' && digit <= 'F')
        return digit - 'A' + 10;
    if (digit >= 'a' && digit <= 'f')
        return digit - 'a' + 10;
    return -1;
}

} // namespace

Uuid::Uuid(const std::array<std::uint8_t, 16> &bytes) noexcept : m_bytes(bytes) {}

Uuid Uuid::random()
{
    std::array<std::uint8_t, 16> bytes{};
    // unreachable: a running system has random bytes
    if (getentropy(bytes.data(), bytes.size()) != 0)
        fatalError("the system gives no random bytes");
    bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x40); // version 4
    bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80); // the variant of RFC 9562
    return Uuid(bytes);
}

std::optional<Uuid> Uuid::fromText(std::string_view text) noexcept
{
    if (text.size() != textSize)
        return std::nullopt;
    std::array<std::uint8_t, 16> bytes{};
    std::size_t digits = 0;
    for (std::size_t index = 0; index < textSize; ++index) {
        if (isHyphenIndex(index)) {
            if (text[index] != '-')
                return std::nullopt;
            continue;
        }
        const int value = digitValue(text[index]);
        if (value < 0)
            return std::nullopt;
        std::uint8_t &byte = bytes[digits / 2];
        byte = static_cast<std::uint8_t>(byte * 16 + value);
        ++digits;
    }
    return Uuid(bytes);
}

std::string Uuid::text() const
{
    constexpr std::string_view hexadecimal = "0123456789ABCDEF";
    std::string text;
    text.reserve(textSize);
    for (const std::uint8_t byte : m_bytes) {
        if (isHyphenIndex(text.size()))
            text += '-';
        text += hexadecimal[byte >> 4U];
        text += hexadecimal[byte & 0x0FU];
    }
    return text;
}

} // namespace Loadwick
