#include "stage/Stage.h"

#include <algorithm>
#include <utility>

#include "history/WeeklyKPIReader.h"
#include "onboarding/OnboardingPresenter.h"
#include "onboarding/PreferencesCompletionStore.h"
#include "overview/OverviewPresenter.h"
#include "report/InstructionFileScanner.h"
#include "samples/Confinement.h"
#include "shell/ContentPresenter.h"
#include "stage/WindowControl.h"

namespace Loadwick {

using namespace WindowControl;

namespace {

constexpr std::chrono::sys_seconds scanDate(std::chrono::seconds(1'772'615'727)); // 4 March 2026

/// Collaborators of a window without scans: everything it could start or read is in an empty home.
LoadwickWindow::Collaborators collaborators(const std::filesystem::path &home)
{
    return {.scan = {.probeRunner =
                         std::make_shared<ProbeRunner>(Confinement::runnerSettings(home, nullptr)),
                     .instructionScanner = std::make_shared<InstructionFileScanner>(
                         InstructionFileScanner::Settings{.home = home.string()})},
            .home = "/home/someone"};
}

LoadwickWindow::Collaborators withHistory(const std::filesystem::path &home)
{
    LoadwickWindow::Collaborators made = collaborators(home);
    made.scan.historyStore = std::make_unique<ScanHistoryStore>(home);
    return made;
}

LoadwickWindow::Collaborators withFirstLaunch(const std::filesystem::path &home)
{
    LoadwickWindow::Collaborators made = collaborators(home);
    made.completionStore = std::make_shared<PreferencesCompletionStore>(home / "preferences.ini");
    return made;
}

/// A week a little over one target and under the other.
WeeklyKPILine sampleWeek()
{
    return {.medianTokensPerSession = 28'104'250,
            .tokensPerPR = 35'912'004,
            .totalTokens = 1'508'304'168,
            .mergedPRs = 42,
            .windowStart = "2026-03-02",
            .windowEnd = "2026-03-08",
            .timestamp = "2026-03-09T06:00:00Z"};
}

/// A scan that has ended is recorded, after a lighter one of the day before.
std::vector<RecordedScan> historyOf(const Scene &scene)
{
    if (!scene.report)
        return scene.history;
    RecordedScan latest = RecordedScan::fromReport(*scene.report, scanDate, Uuid::random());
    RecordedScan previous = latest;
    previous.id = Uuid::random();
    previous.date -= std::chrono::hours(24);
    previous.total -= previous.total / 16;
    return {std::move(previous), std::move(latest)};
}

} // namespace

Scene Scene::ofScan(const SampleScan &scan)
{
    return {.page = AppPage::overview, .subject = scan.name, .report = scan.report()};
}

Scene Scene::ofHistory(AppPage page, std::string subject, std::vector<RecordedScan> history)
{
    return {.page = page, .subject = std::move(subject), .history = std::move(history)};
}

std::string Scene::name() const
{
    return std::string(page.rawValue()) + "-" + subject;
}

bool Scene::isNamedBy(const std::vector<std::string> &words) const
{
    return words.empty() ||
           std::any_of(words.begin(), words.end(),
                       [this](const std::string &word) { return name().starts_with(word); });
}

Stage::Stage() : m_loadwick(withHistory(m_folder.path()))
{
    waitUntil("the history", [this] { return m_loadwick.model().isHistoryComplete(); });
    m_loadwick.overview().weekly()->show(sampleWeek());
    window().show();
}

void Stage::show(const Scene &scene)
{
    ScanModel &model = m_loadwick.model();
    model.state().set(ScanState::idle());
    model.history().set(historyOf(scene));
    if (scene.report) {
        model.select(RepoSelection::fromUrl(scene.report->repositoryPath));
        model.state().set(ScanState::result(*scene.report));
    } else if (!scene.history.empty()) {
        model.select(RepoSelection::fromUrl(scene.history.back().repositoryPath));
    }
    m_loadwick.content().setPageIndex(static_cast<int>(AppPage::Value(scene.page)));
}

FirstLaunch::FirstLaunch() : m_loadwick(withFirstLaunch(m_folder.path()))
{
    appearanceOf(window()).setMotion(Appearance::Reduced);
    window().show();
    waitUntil("the first launch's sheet", [this] { return onboarding().isPresented(); });
}

} // namespace Loadwick
