#pragma once

#include "pictures/PageCamera.h"
#include "shell/LoadwickWindow.h"

namespace Loadwick {

/// The program's window on a first launch that is remembered nowhere.
class WalkThrough
{
public:
    /// Begins the names of its pictures.
    static constexpr const char *name = "onboarding";

    /// Returns when the sheet is open.
    WalkThrough();

    [[nodiscard]] QQuickWindow &window() { return m_loadwick.window(); }

    /// A picture of each step: "onboarding-1" to "onboarding-4".
    void take(const PageCamera &camera);

private:
    LoadwickWindow m_loadwick;
};

} // namespace Loadwick
