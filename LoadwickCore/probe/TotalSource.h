#pragma once

#include <optional>
#include <string_view>

namespace Loadwick {

/// Where an authoritative total was read.
class TotalSource
{
public:
    enum Value
    {
        transcript,
        cliUsage
    };

    constexpr TotalSource(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    /// The case's name, as in persisted data.
    [[nodiscard]] std::string_view rawValue() const noexcept;
    [[nodiscard]] static std::optional<TotalSource> fromRawValue(std::string_view text) noexcept;

    /// The phrase that names the source wherever a text speaks of it.
    [[nodiscard]] std::string_view label() const noexcept;

private:
    Value m_value;
};

} // namespace Loadwick
