#pragma once

#include <chrono>
#include <filesystem>
#include <optional>

#include "probe/ProbeError.h"

/// Checks that a repository can be listed, before a session is spent on it.
namespace Loadwick::FolderAccess {

/// `repositoryUnreadable` when listing fails for any reason, else nothing. Blocks for as long as
/// the disk does.
[[nodiscard]] std::optional<ProbeError> checkSynchronously(const std::filesystem::path &repository);

/// The same within a limit: a disk that does not answer in time counts as unreadable. Blocking:
/// call it off the interface thread.
[[nodiscard]] std::optional<ProbeError>
preflight(const std::filesystem::path &repository,
          std::chrono::duration<double> limit = std::chrono::seconds(30));

} // namespace Loadwick::FolderAccess
