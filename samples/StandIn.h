#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Loadwick {

/// The stand-in for the `claude` command inside one throw-away home. This class copies the program,
/// samples/claude, to where the ordinary search looks and tells it what to do.
class StandIn
{
public:
    /// What one session of the stand-in does; samples/claude lists the outcomes.
    struct Scenario
    {
        std::string outcome = "transcript";
        std::string seconds = "0";
        std::string message = {}; ///< empty: the stand-in's own text
        /// Sessions in any other folder fail with the reason; empty: sessions work everywhere.
        std::filesystem::path onlyBelow = {};
    };

    /// Touches nothing yet; see `install`.
    explicit StandIn(std::filesystem::path home);

    [[nodiscard]] std::filesystem::path executable() const;

    /// Copies the program into the home.
    void install() const;

    /// Sets the behaviour of every session that starts from now on.
    void play(const Scenario &scenario) const;

    /// Keeps running sessions from ending until `release`.
    void hold() const;
    void release() const;

    /// The process ids of all sessions so far, in order of their starts.
    [[nodiscard]] std::vector<int> runs() const;

private:
    [[nodiscard]] std::filesystem::path share() const;

    std::filesystem::path m_home;
};

} // namespace Loadwick
