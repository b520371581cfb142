#pragma once

#include <optional>
#include <string>
#include <vector>

#include "history/RecordedScan.h"
#include "report/ScanReport.h"
#include "samples/SampleHistories.h"
#include "samples/SampleScans.h"
#include "samples/TemporaryFolder.h"
#include "shell/AppPage.h"
#include "shell/LoadwickWindow.h"

namespace Loadwick {

/// A page and its data.
struct Scene
{
    AppPage page;
    std::string subject;                   ///< a word for what the page shows
    std::optional<ScanReport> report = {}; ///< none: nothing was scanned
    std::vector<RecordedScan> history = {};

    [[nodiscard]] static Scene ofScan(const SampleScan &scan);
    [[nodiscard]] static Scene ofHistory(AppPage page, std::string subject,
                                         std::vector<RecordedScan> history);

    /// The prefix of the pictures' names: "overview-heavy".
    [[nodiscard]] std::string name() const;

    /// Whether the name begins with one of the words, or no words are given.
    [[nodiscard]] bool isNamedBy(const std::vector<std::string> &words) const;
};

/// The program's own window, into whose model scenes are put as if they had just been scanned.
/// Nothing is run or written for it.
class Stage
{
public:
    Stage();

    [[nodiscard]] QQuickWindow &window() { return m_loadwick.window(); }

    void show(const Scene &scene);

private:
    TemporaryFolder m_folder; // with a store, even an empty one, the history can be cleared
    LoadwickWindow m_loadwick;
};

/// The program's window on a first launch. The constructor returns when the sheet is open.
class FirstLaunch
{
public:
    /// The prefix of the names of its pictures.
    static constexpr const char *name = "onboarding";

    FirstLaunch();

    [[nodiscard]] QQuickWindow &window() { return m_loadwick.window(); }
    [[nodiscard]] OnboardingPresenter &onboarding() { return m_loadwick.onboarding(); }

private:
    TemporaryFolder m_folder;
    LoadwickWindow m_loadwick;
};

} // namespace Loadwick
