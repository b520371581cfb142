#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace Loadwick {

/// Where the figure of a breakdown row comes from.
class Provenance
{
public:
    enum Value
    {
        claudeReported,
        selfReported,
        localEstimate,
        remainder
    };

    static const std::array<Provenance, 4> all;

    constexpr Provenance(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    /// The case's name, as in identifiers.
    [[nodiscard]] std::string_view rawValue() const noexcept;
    [[nodiscard]] static std::optional<Provenance> fromRawValue(std::string_view text) noexcept;

    /// True of what the session recorded as its usage, of nothing else.
    [[nodiscard]] bool isAuthoritative() const noexcept { return m_value == claudeReported; }

    /// The phrase printed beside a row.
    [[nodiscard]] std::string_view sourceLabel() const noexcept;

private:
    Value m_value;
};

} // namespace Loadwick
