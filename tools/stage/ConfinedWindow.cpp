#include "stage/ConfinedWindow.h"

#include <utility>

#include <QObject>

#include "history/ScanHistoryStore.h"
#include "history/WeeklyKPIReader.h"
#include "report/InstructionFileScanner.h"

namespace Loadwick::ConfinedWindow {

namespace {

class GivenFolderChooser final : public FolderChooser
{
public:
    explicit GivenFolderChooser(std::function<std::filesystem::path()> answer)
        : m_answer(std::move(answer))
    {}

    void open(Chosen chosen) override
    {
        QMetaObject::invokeMethod(
            &m_interface, [this, chosen = std::move(chosen)] { chosen(m_answer()); },
            Qt::QueuedConnection);
    }

private:
    std::function<std::filesystem::path()> m_answer;
    QObject m_interface; ///< no answer arrives once this object is gone
};

} // namespace

LoadwickWindow::Collaborators collaborators(const std::filesystem::path &home,
                                            ProbeRunner::Settings settings)
{
    const Environment environment = settings.environment;
    return {
        .scan = {.probeRunner = std::make_shared<ProbeRunner>(std::move(settings)),
                 .instructionScanner = std::make_shared<InstructionFileScanner>(
                     InstructionFileScanner::Settings{.home = home.string()}),
                 .historyStore = std::make_unique<ScanHistoryStore>(
                     ScanHistoryStore::defaultDirectory(environment))},
        .locale = TextLocale::fromEnvironment(environment),
        .weeklyLog = WeeklyKPIReader::defaultPath(home.string()),
        .home = home,
    };
}

std::unique_ptr<FolderChooser> givenFolder(std::function<std::filesystem::path()> answer)
{
    return std::make_unique<GivenFolderChooser>(std::move(answer));
}

} // namespace Loadwick::ConfinedWindow
