#pragma once

#include <cstdint>
#include <string_view>

namespace Loadwick {

/// Parses the values that a target needs off the head of a human-readable input: lines, and decimal
/// numbers inside them. Views into the input.
class FuzzInput
{
public:
    explicit FuzzInput(std::string_view bytes) noexcept : m_rest(bytes) {}

    [[nodiscard]] bool isAtEnd() const noexcept { return m_rest.empty(); }
    [[nodiscard]] std::string_view rest() const noexcept { return m_rest; }

    /// The text before `separator`, which is taken too; the whole rest if there is none.
    [[nodiscard]] std::string_view takeUpTo(char separator) noexcept;
    [[nodiscard]] std::string_view takeLine() noexcept { return takeUpTo('\n'); }

    /// The integer at the head, from -`limit` to `limit`: a larger one is folded into that range,
    /// and a missing one is 0. `limit` is at most `largestLimit`.
    [[nodiscard]] std::int64_t takeInteger(std::int64_t limit) noexcept;

    static constexpr std::int64_t largestLimit = 100'000'000'000'000'000;

private:
    std::string_view m_rest;
};

} // namespace Loadwick
