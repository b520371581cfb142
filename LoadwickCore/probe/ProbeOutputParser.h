#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "probe/ProbeUsage.h"

namespace Loadwick {

/// The command's JSON result record.
struct ProbeOutput
{
    std::string sessionID; ///< never empty
    std::string result;    ///< the session's final answer; may be empty
    std::optional<ProbeUsage> usage;

    friend bool operator==(const ProbeOutput &, const ProbeOutput &) = default;
};

} // namespace Loadwick

/// Reads what one headless session left on its standard streams.
namespace Loadwick::ProbeOutputParser {

/// The result record on standard output. The exit code and standard error matter only when standard
/// output is not a JSON object. Throws `ProbeError`: `notAuthenticated`, `sessionFailed` or
/// `unreadableOutput`.
[[nodiscard]] ProbeOutput parse(std::string_view standardOutput, std::string_view standardError,
                                std::int32_t exitCode);

/// Whether a text holds one of the command's sign-in complaints, in any letter case.
[[nodiscard]] bool indicatesAuthenticationFailure(std::string_view text);

} // namespace Loadwick::ProbeOutputParser
