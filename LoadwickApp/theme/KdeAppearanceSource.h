#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include <QFileSystemWatcher>
#include <QTimer>

#include "model/TaskDispatcher.h"
#include "theme/AppearanceSource.h"

/// Reads what KDE's programs share: the file "kdeglobals" of the user's configuration folder.
namespace Loadwick::KdeGlobals {

/// The wishes in the text of the file: dark by the ground of its windows, else by the name of its
/// colour scheme; contrast by that name; reduced motion if animations take 0 times as long. Other
/// lines say nothing.
[[nodiscard]] DesktopWishes wishes(std::string_view text);

} // namespace Loadwick::KdeGlobals

namespace Loadwick {

/// The wishes that KDE keeps in a file, and their changes while the program runs. The file is read
/// in the background; without it all wishes are absent.
class KdeAppearanceSource : public AppearanceSource
{
    Q_OBJECT

public:
    KdeAppearanceSource(std::filesystem::path file, std::shared_ptr<TaskDispatcher> dispatcher,
                        QObject *parent = nullptr);

    /// Where the user's file is. Empty on a desktop that says it is another: a file that KDE once
    /// left there is out of date.
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
