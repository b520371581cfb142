#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Loadwick {

/// A universally unique identifier (RFC 9562).
class Uuid
{
public:
    /// A fresh random one (version 4).
    [[nodiscard]] static Uuid random();

    /// Reads the canonical form, 8-4-4-4-12 hexadecimal digits of either case and nothing else.
    [[nodiscard]] static std::optional<Uuid> fromText(std::string_view text) noexcept;

    /// The canonical form in upper case.
    [[nodiscard]] std::string text() const;

    friend auto operator<=>(const Uuid &, const Uuid &) = default;

private:
    explicit Uuid(const std::array<std::uint8_t, 16> &bytes) noexcept;

    std::array<std::uint8_t, 16> m_bytes;
};

} // namespace Loadwick
