#pragma once

#include "pictures/Scene.h"
#include "samples/TemporaryFolder.h"
#include "shell/LoadwickWindow.h"

namespace Loadwick {

/// The program's own window, into whose model scenes are put as if they had just been scanned.
/// Nothing is run or written for it.
class Stage
{
public:
    Stage();

    [[nodiscard]] QQuickWindow &window() { return m_loadwick.window(); }

    void show(const Scene &scene);

private:
    TemporaryFolder m_folder; // of a history that stays empty: with one it can be cleared
    LoadwickWindow m_loadwick;
};

} // namespace Loadwick
