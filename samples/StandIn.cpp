#include "samples/StandIn.h"

#include <fstream>
#include <string_view>
#include <utility>

#include "samples/TemporaryFolder.h"

namespace Loadwick {

StandIn::StandIn(std::filesystem::path home) : m_home(std::move(home)) {}

std::filesystem::path StandIn::executable() const
{
    return m_home / ".local/bin/claude";
}

void StandIn::install() const
{
    std::filesystem::create_directories(executable().parent_path());
    std::filesystem::copy_file(LOADWICK_STAND_IN, executable(),
                               std::filesystem::copy_options::overwrite_existing);
    std::filesystem::permissions(executable(), std::filesystem::perms::owner_all);
}

void StandIn::play(const Scenario &scenario) const
{
    std::string text = "outcome=" + scenario.outcome + "\nseconds=" + scenario.seconds + "\n";
    if (!scenario.message.empty())
        text += "message=" + scenario.message + "\n";
    if (!scenario.onlyBelow.empty())
        text += "only_below=" + scenario.onlyBelow.string() + "\n";
    writeFile(share() / "scenario", text);
}

void StandIn::hold() const
{
    writeFile(share() / "hold", "");
}

void StandIn::release() const
{
    std::filesystem::remove(share() / "hold");
}

std::vector<int> StandIn::runs() const
{
    std::ifstream file(share() / "runs");
    std::vector<int> ids;
    for (int id = 0; file >> id;)
        ids.push_back(id);
    return ids;
}

std::filesystem::path StandIn::share() const
{
    return m_home / ".local/share/loadwick-standin";
}

} // namespace Loadwick
