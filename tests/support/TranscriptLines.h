#pragma once

#include <cstdint>
#include <string>

namespace Loadwick {

/// The assistant's line of a transcript without its line feed. Its usage holds `inputTokens` and
/// one output token.
[[nodiscard]] inline std::string assistantLine(std::int64_t inputTokens)
{
    return R"({"message":{"id":"m","usage":{"input_tokens":)" + std::to_string(inputTokens) +
           R"(,"output_tokens":1}},"uuid":"u","type":"assistant"})";
}

} // namespace Loadwick
