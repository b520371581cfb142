#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Loadwick {

/// The stand-in for the `claude` command inside one throw-away home. The program itself stands in
/// tools/demo/claude; this class puts it where the ordinary search looks and tells it what to do.
class StandIn
{
public:
    /// What one session of the stand-in does; tools/demo/claude lists the outcomes.
    struct Scenario
    {
        std::string outcome = "transcript";
        std::string seconds = "0";
        std::string message = {}; ///< empty: the stand-in's own words
        /// Sessions anywhere else fail, and say why; empty: none does.
        std::filesystem::path onlyBelow = {};
    };

    /// Touches nothing yet.
    explicit StandIn(std::filesystem::path home);

    [[nodiscard]] std::filesystem::path executable() const;

    /// Copies the program into the home.
    void install() const;

    /// What the sessions do that start from now on.
    void play(const Scenario &scenario) const;

    /// Keeps running sessions from ending until `release`.
    void hold() const;
    void release() const;

    /// The process ids of all sessions so far, in the order of their starts.
    [[nodiscard]] std::vector<int> runs() const;

private:
    [[nodiscard]] std::filesystem::path share() const;

    std::filesystem::path m_home;
};

} // namespace Loadwick
