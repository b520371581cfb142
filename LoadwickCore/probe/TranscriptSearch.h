#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "posix/FileSystem.h"
#include "probe/ProbeUsage.h"
#include "process/Deadline.h"
#include "process/Shutdown.h"

namespace Loadwick {

/// Looks for the transcript of a session that has just ended, several times: the command may still
/// be writing it. Owns or shares all that it touches, so that it can be left to itself when a disk
/// does not answer.
struct TranscriptSearch
{
    std::string sessionID;
    std::filesystem::path projectsRoot;
    std::shared_ptr<const FileSystem> fileSystem;
    std::shared_ptr<Shutdown> shutdown; ///< its request ends the search between two attempts
    int attempts;                       ///< fewer than 1 count as 1
    double delaySeconds; ///< before every attempt but the first; negative or not finite is fatal
    Deadline deadline = Deadline::max(); ///< no attempt begins once nobody waits any more

    /// The usage of the session's first assistant message, from the first attempt that yields one.
    /// Blocking.
    [[nodiscard]] std::optional<ProbeUsage> run() const;
};

} // namespace Loadwick
