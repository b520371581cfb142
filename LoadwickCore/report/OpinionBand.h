#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "text/NamedValue.h"

namespace Loadwick {

struct TextLocale;

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
    static constexpr std::array all{lean, heavy, excessive};

    static constexpr std::int64_t heavyThreshold = 30'000;
    static constexpr std::int64_t excessiveThreshold = 60'000;
    static const std::string_view opinionNote;
    static const std::string_view anchorNote;

    constexpr OpinionBand(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    /// Below 30,000 tokens lean, above 60,000 excessive, from 30,000 to 60,000 heavy.
    [[nodiscard]] static OpinionBand band(std::int64_t startupTokens) noexcept;

    /// The case's name, as in identifiers.
    [[nodiscard]] std::string_view rawValue() const noexcept;
    [[nodiscard]] static std::optional<OpinionBand> fromRawValue(std::string_view text) noexcept
    {
        return valueNamed<OpinionBand>(text);
    }

    [[nodiscard]] std::string_view title() const noexcept;

    /// The band's bounds in words and grouped figures.
    [[nodiscard]] std::string range(const TextLocale &locale) const;

private:
    Value m_value;
};

/// Positions totals and thresholds on a meter whose right end grows with the total in fixed steps.
namespace BandScale {

inline constexpr std::int64_t normalMaximum = 90'000; ///< tokens; the smallest right end
inline constexpr std::int64_t step = 30'000;          ///< tokens

/// The next multiple of `step` strictly above `total`, never below `normalMaximum`; the largest
/// 64-bit integer where that multiple does not fit.
[[nodiscard]] std::int64_t maximum(std::int64_t total) noexcept;

/// `total` as a fraction of its own maximum, in [0, 1].
[[nodiscard]] double position(std::int64_t total) noexcept;

/// `threshold` as a fraction of the maximum for `total`, in [0, 1].
[[nodiscard]] double thresholdPosition(std::int64_t threshold, std::int64_t total) noexcept;

} // namespace BandScale

} // namespace Loadwick
