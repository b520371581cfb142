#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include <QFileSystemWatcher>
#include <QTimer>

#include "model/TaskDispatcher.h"
#include "theme/AppearanceSource.h"

/// Reads the settings that KDE's programs share: "kdeglobals" in the user's configuration folder.
namespace Loadwick::KdeGlobals {

/// The wishes in the text of the file: dark by the ground of its windows, else by the name of its
/// colour scheme; contrast by that name; reduced motion if the factor of animations is 0. Other
/// lines are ignored.
[[nodiscard]] DesktopWishes wishes(std::string_view text);

} // namespace Loadwick::KdeGlobals

namespace Loadwick {

/// The wishes that KDE keeps in a file, updated while the program runs. The file is read in the
/// background; without it all wishes are absent.
class KdeAppearanceSource : public AppearanceSource
{
    Q_OBJECT

public:
    KdeAppearanceSource(std::filesystem::path file, std::shared_ptr<TaskDispatcher> dispatcher,
                        QObject *parent = nullptr);

    /// The path of the user's file. Empty on a desktop that identifies itself as another: a file
    /// that KDE once left there is out of date.
    [[nodiscard]] static std::filesystem::path userFile();

    [[nodiscard]] DesktopWishes wishes() const override { return m_wishes; }

private:
    void read();
    void show(const DesktopWishes &wishes);

    std::filesystem::path m_file;
    std::shared_ptr<TaskDispatcher> m_dispatcher;
    QFileSystemWatcher m_watcher;
    QTimer m_afterwards; ///< merges a burst of changes
    DesktopWishes m_wishes;
};

} // namespace Loadwick
