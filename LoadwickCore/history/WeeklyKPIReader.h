#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "history/WeeklyKPILine.h"

/// Reads the newest usable line of the weekly token log: JSON Lines, UTF-8, written by another tool
/// while we may be reading. Whatever cannot be read yields nothing.
namespace Loadwick::WeeklyKPIReader {

inline constexpr std::int64_t medianTokensPerSessionTarget = 27'510'462;
inline constexpr std::int64_t tokensPerPRTarget = 37'681'168;
inline constexpr std::string_view targetsSource =
    "halden-machine-config docs/data/token-kpi-baseline-2026-08-09.json (locked baseline)";

inline constexpr std::size_t maximumBytes = std::size_t{64} << 20;

/// Where the log lies under a home folder, which is given without a slash at its end.
[[nodiscard]] std::string defaultPath(std::string_view home);

/// The newest usable line of the file; nothing when it cannot be read, is no regular file or no
/// UTF-8. Of a file longer than `byteLimit` only the last so many bytes are read, and of those what
/// stands before the first line feed is left out. Blocks on the disk: call it off the interface
/// thread.
[[nodiscard]] std::optional<WeeklyKPILine> read(const std::filesystem::path &path,
                                                std::size_t byteLimit = maximumBytes);

/// The last line that is a JSON object with integers under "median_tokens_per_session" and
/// "tokens_per_pr"; the dates in the lines are not compared. Words that are missing read "unknown".
[[nodiscard]] std::optional<WeeklyKPILine> parseLatest(std::string_view text);

} // namespace Loadwick::WeeklyKPIReader
