#pragma once

#include <filesystem>
#include <memory>

#include <QFileSystemWatcher>
#include <QTimer>

#include "model/TaskDispatcher.h"
#include "theme/AppearanceSource.h"

namespace Loadwick {

/// The wishes that KDE keeps in a file, and their changes while the program runs. The file is read
/// in the background; without it all wishes are absent.
class KdeAppearanceSource : public AppearanceSource
{
    Q_OBJECT

public:
    KdeAppearanceSource(std::filesystem::path file, std::shared_ptr<TaskDispatcher> dispatcher,
                        QObject *parent = nullptr);

    /// Where the user's file is. Empty on a desktop that calls itself something else than KDE: what
    /// KDE once left there is nobody's wish any more.
    [[nodiscard]] static std::filesystem::path userFile();

    [[nodiscard]] DesktopWishes wishes() const override { return m_wishes; }

private:
    void read();
    void show(const DesktopWishes &wishes);

    std::filesystem::path m_file;
    std::shared_ptr<TaskDispatcher> m_dispatcher;
    QFileSystemWatcher m_watcher;
    QTimer m_afterwards; ///< one reading for a burst of changes
    DesktopWishes m_wishes;
};

} // namespace Loadwick
