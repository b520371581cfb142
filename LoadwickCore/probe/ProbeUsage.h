#pragma once

#include <cstdint>
#include <optional>

namespace Loadwick {

class JsonValue;

/// Token counts of one message, as the session recorded them.
struct ProbeUsage
{
    std::int64_t inputTokens;
    std::int64_t cacheCreationInputTokens;
    std::int64_t cacheReadInputTokens;
    std::int64_t outputTokens;

    /// Reads "input_tokens", "cache_creation_input_tokens", "cache_read_input_tokens" and
    /// "output_tokens" of a JSON object. A value that is not an exact integer counts as absent, an
    /// absent one as 0; nothing when none of the three input counts is present.
    [[nodiscard]] static std::optional<ProbeUsage> from(const JsonValue &object);

    /// Input, cache-creation and cache-read tokens together; output tokens are not startup context.
    /// Overflow ends the program.
    [[nodiscard]] std::int64_t startupTotal() const noexcept;

    friend bool operator==(const ProbeUsage &, const ProbeUsage &) = default;
};

} // namespace Loadwick
