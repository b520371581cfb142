#pragma once

#include <cstdint>
#include <string_view>

#include "probe/ProbeOutput.h"

/// Reads what one headless session left on its standard streams.
namespace Loadwick::ProbeOutputParser {

/// The result record on standard output. The exit code is asked only when standard output is no
/// JSON object; standard error is never asked when it is one.
/// Throws `ProbeError`: `notAuthenticated`, `sessionFailed` or `unreadableOutput`.
[[nodiscard]] ProbeOutput parse(std::string_view standardOutput, std::string_view standardError,
                                std::int32_t exitCode);

/// Whether a text holds one of the command's sign-in complaints, in any letter case.
[[nodiscard]] bool indicatesAuthenticationFailure(std::string_view text);

} // namespace Loadwick::ProbeOutputParser
