#pragma once

#include <cstdint>
#include <string>

namespace Loadwick {

/// A transcript's assistant line without its line feed, its usage holding `inputTokens` and one
/// output token.
[[nodiscard]] std::string assistantLine(std::int64_t inputTokens);

} // namespace Loadwick
