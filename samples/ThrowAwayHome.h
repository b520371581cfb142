#pragma once

#include <filesystem>

#include "samples/StandIn.h"
#include "samples/TemporaryFolder.h"

namespace Loadwick {

/// A temporary home folder with everything that the demonstration shows: a sample repository, a
/// recorded history, every other repository named in it, and the stand-in for `claude`.
class ThrowAwayHome
{
public:
    ThrowAwayHome();

    [[nodiscard]] const std::filesystem::path &path() const noexcept { return m_folder.path(); }
    [[nodiscard]] const std::filesystem::path &repository() const noexcept { return m_repository; }
    [[nodiscard]] const StandIn &standIn() const noexcept { return m_standIn; }

    /// Where the history of this home is kept.
    [[nodiscard]] std::filesystem::path historyFolder() const;

private:
    TemporaryFolder m_folder;
    std::filesystem::path m_repository;
    StandIn m_standIn;
};

} // namespace Loadwick
