#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace Loadwick {

/// Whom an instruction file belongs to.
class InstructionFileTier
{
public:
    enum Value
    {
        repository,
        inherited,
        personal
    };

    static const std::array<InstructionFileTier, 3> all;

    constexpr InstructionFileTier(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    /// The case's name, as in persisted data.
    [[nodiscard]] std::string_view rawValue() const noexcept;
    [[nodiscard]] static std::optional<InstructionFileTier>
    fromRawValue(std::string_view text) noexcept;

private:
    Value m_value;
};

} // namespace Loadwick
