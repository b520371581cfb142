#pragma once

#include <array>
#include <filesystem>
#include <string_view>

#include "posix/ProcessContext.h"

/// The environment that a probe's child inherits.
namespace Loadwick::ProbeEnvironment {

inline constexpr std::array<std::string_view, 2> preservedKeys{"CLAUDE_CONFIG_DIR",
                                                               "CLAUDE_CODE_OAUTH_TOKEN"};
inline constexpr std::array<std::string_view, 4> scrubbedExactKeys{
    "CLAUDECODE", "ANTHROPIC_BASE_URL", "ANTHROPIC_API_KEY", "ANTHROPIC_AUTH_TOKEN"};
inline constexpr std::string_view scrubbedKeyPrefix = "CLAUDE_CODE_";

/// `parent` without its API keys, tokens and endpoints, so that the command runs under the user's
/// own sign-in. CLAUDE_CONFIG_DIR is made absolute against `workingDirectory`, and left out when it
/// is blank, so that the child and the transcript search use the same folder: the command would
/// take a blank value for its working folder and write there.
[[nodiscard]] Environment childEnvironment(const Environment &parent,
                                           const std::filesystem::path &workingDirectory);

} // namespace Loadwick::ProbeEnvironment
