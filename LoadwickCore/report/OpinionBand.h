#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "text/TextLocale.h"

namespace Loadwick {

/// This program's own judgement of how heavy a startup context is.
class OpinionBand
{
public:
    enum Value
    {
        lean,
        heavy,
        excessive
    };

    static constexpr std::int64_t heavyThreshold = 30'000;
    static constexpr std::int64_t excessiveThreshold = 60'000;
    static const std::string_view opinionNote;
    static const std::string_view anchorNote;
    static const std::array<OpinionBand, 3> all;

    constexpr OpinionBand(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    /// Below 30,000 tokens lean, above 60,000 excessive, between them (both included) heavy.
    [[nodiscard]] static OpinionBand band(std::int64_t startupTokens) noexcept;

    /// The case's name, as in identifiers.
    [[nodiscard]] std::string_view rawValue() const noexcept;
    [[nodiscard]] static std::optional<OpinionBand> fromRawValue(std::string_view text) noexcept;

    [[nodiscard]] std::string_view title() const noexcept;

    /// The band's bounds in words and grouped figures.
    [[nodiscard]] std::string range(const TextLocale &locale) const;

private:
    Value m_value;
};

} // namespace Loadwick
