#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "probe/ProbeUsage.h"

/// Reads the token usage of a session's first assistant message: what the model received before it
/// produced anything. Whatever cannot be read yields nothing.
namespace Loadwick::TranscriptReader {

/// Reads the JSON Lines file at `path` in pieces of 64 KiB and stops at the first line that yields
/// a usage. A malformed line, or one of more than 64 MiB, is skipped.
[[nodiscard]] std::optional<ProbeUsage>
firstAssistantUsageAtPath(const std::filesystem::path &path);

/// The same of a whole transcript in memory.
[[nodiscard]] std::optional<ProbeUsage> firstAssistantUsageIn(std::string_view text);

} // namespace Loadwick::TranscriptReader
