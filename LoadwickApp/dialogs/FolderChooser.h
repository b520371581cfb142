#pragma once

#include <filesystem>
#include <functional>
#include <memory>

class QUrl;
class QWindow;

namespace Loadwick {

/// Lets the user choose one existing folder. Belongs to the interface thread.
class FolderChooser
{
public:
    using Chosen = std::function<void(const std::filesystem::path &folder)>;

    virtual ~FolderChooser() = default;

    /// The window to be modal to; set it before the first question. It outlives this object's use.
    virtual void attach(QWindow &) {}

    /// Asks the user and returns at once. `chosen` is called later on the interface thread with the
    /// folder's path, byte for byte; never when the user cancels. Does nothing while an earlier
    /// question is open.
    virtual void open(Chosen chosen) = 0;
};

/// Asks with a FileDialog. It first shows `startFolder`, later the folder it showed last.
[[nodiscard]] std::unique_ptr<FolderChooser> platformFolderChooser(const QUrl &startFolder);

} // namespace Loadwick
