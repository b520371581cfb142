#pragma once

#include <optional>
#include <string_view>

namespace Loadwick {

/// Which kind of row exceeds the total.
class OverAttributionSource
{
public:
    enum Value
    {
        selfReported,
        localEstimate,
        combined
    };

    constexpr OverAttributionSource(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    /// The case's name.
    [[nodiscard]] std::string_view rawValue() const noexcept;
    [[nodiscard]] static std::optional<OverAttributionSource>
    fromRawValue(std::string_view text) noexcept;

private:
    Value m_value;
};

} // namespace Loadwick
