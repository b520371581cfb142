#pragma once

#include <optional>
#include <string>
#include <vector>

#include "history/RecordedScan.h"
#include "report/ScanReport.h"
#include "shell/AppPage.h"

namespace Loadwick {

/// What the window is to show in one picture.
struct Scene
{
    AppPage page;
    std::string subject;                   ///< what the page shows
    std::optional<ScanReport> report = {}; ///< none: nothing was scanned
    std::vector<RecordedScan> history = {};

    /// The page and its subject, as they begin the pictures' names: "overview-heavy".
    [[nodiscard]] std::string name() const;
};

/// The Overview of every sample scan, Trends and Compare of every sample history.
[[nodiscard]] std::vector<Scene> allScenes();

} // namespace Loadwick
