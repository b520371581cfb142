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

/// The preferences in the text of the file: dark by the window background, else by the name of the
/// colour scheme; contrast by that name; reduced motion if the animation factor is 0. Other lines
/// are ignored.
[[nodiscard]] DesktopPreferences preferences(std::string_view text);

} // namespace Loadwick::KdeGlobals

namespace Loadwick {

/// The preferences that KDE keeps in a file, updated while the program runs. The file is read in
/// the background; without it all preferences are absent.
class KdeAppearanceSource : public AppearanceSource
{
    Q_OBJECT

public:
    KdeAppearanceSource(std::filesystem::path file, std::shared_ptr<TaskDispatcher> dispatcher,
                        QObject *parent = nullptr);

    /// Whether the desktop identifies itself as KDE.
    [[nodiscard]] static bool isDesktopKde();

    /// The path of the user's file. Empty on a desktop that identifies itself as another: a file
    /// that KDE once left there is out of date.
    [[nodiscard]] static std::filesystem::path userFile();

    [[nodiscard]] DesktopPreferences preferences() const override { return m_preferences; }

private:
    void read();
    void show(const DesktopPreferences &preferences);

    std::filesystem::path m_file;
    std::shared_ptr<TaskDispatcher> m_dispatcher;
    QFileSystemWatcher m_watcher;
    QTimer m_afterwards; ///< merges a burst of changes
    DesktopPreferences m_preferences;
};

} // namespace Loadwick
