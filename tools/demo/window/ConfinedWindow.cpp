#include "demo/window/ConfinedWindow.h"

#include <utility>

#include "history/ScanHistoryStore.h"
#include "history/WeeklyKPIReader.h"
#include "report/InstructionFileScanner.h"

namespace Loadwick::ConfinedWindow {

LoadwickWindow::Collaborators collaborators(const std::filesystem::path &home,
                                            ProbeRunner::Settings settings)
{
    const Environment environment = settings.environment;
    return {
        .probeRunner = std::make_shared<ProbeRunner>(std::move(settings)),
        .instructionScanner = std::make_shared<InstructionFileScanner>(
            InstructionFileScanner::Settings{.home = home.string()}),
        .historyStore =
            std::make_unique<ScanHistoryStore>(ScanHistoryStore::defaultDirectory(environment)),
        .locale = TextLocale::fromEnvironment(environment),
        .weeklyLog = WeeklyKPIReader::defaultPath(home.string()),
        .home = home,
    };
}

} // namespace Loadwick::ConfinedWindow
