#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "posix/FileSystem.h"
#include "posix/ProcessContext.h"
#include "process/Deadline.h"

/// Finds the transcript file of a session.
namespace Loadwick::TranscriptLocator {

inline constexpr std::string_view configDirEnvironmentKey = "CLAUDE_CONFIG_DIR";

/// The folder under which transcripts are written: "projects" in the configuration folder, which
/// is the environment's CLAUDE_CONFIG_DIR (normalised) or else `home` + "/.claude".
[[nodiscard]] std::filesystem::path defaultProjectsRoot(const std::string &home,
                                                        const Environment &environment);

/// A user's configuration folder made absolute: trimmed, a leading "~" expanded to the user's home
/// folder, a relative value joined to `workingDirectory`, "." and ".." removed. Nothing for white
/// space alone.
[[nodiscard]] std::optional<std::string>
normalizedConfigDir(std::string_view value, const std::filesystem::path &workingDirectory);

/// A file named `sessionID` + ".jsonl" at any depth under `root`, or, if there is none, another
/// entry of that name; any one of several. Hidden files and folders are skipped, links to folders
/// are not followed, folders that cannot be listed count as empty. An identifier that is not a
/// plain file name (empty, with "/" or NUL, or a leading ".") finds nothing. No folder is listed
/// after `deadline`.
[[nodiscard]] std::optional<std::filesystem::path> find(std::string_view sessionID,
                                                        const std::filesystem::path &root,
                                                        const FileSystem &fileSystem,
                                                        Deadline deadline = Deadline::max());

} // namespace Loadwick::TranscriptLocator
