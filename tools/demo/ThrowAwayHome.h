#pragma once

#include <filesystem>

#include "demo/StandIn.h"

namespace Loadwick {

/// A home folder in the temporary folder that holds all that the demonstration shows: a sample
/// repository, a recorded history with every other repository that it names, and the stand-in for
/// `claude`. Removed with all that is in it at the end.
class ThrowAwayHome
{
public:
    ThrowAwayHome();
    ~ThrowAwayHome();

    ThrowAwayHome(const ThrowAwayHome &) = delete;
    ThrowAwayHome &operator=(const ThrowAwayHome &) = delete;

    [[nodiscard]] const std::filesystem::path &path() const noexcept { return m_path; }
    [[nodiscard]] const std::filesystem::path &repository() const noexcept { return m_repository; }
    [[nodiscard]] const StandIn &standIn() const noexcept { return m_standIn; }

    /// Where the history of this home is kept.
    [[nodiscard]] std::filesystem::path historyFolder() const;

private:
    std::filesystem::path m_path;
    std::filesystem::path m_repository;
    StandIn m_standIn;
};

} // namespace Loadwick
