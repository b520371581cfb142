#pragma once

#include <filesystem>
#include <functional>

namespace Loadwick {

/// Lets the user choose one existing folder. Belongs to the interface thread.
class FolderChooser
{
public:
    using Chosen = std::function<void(const std::filesystem::path &folder)>;

    virtual ~FolderChooser() = default;

    /// Asks the user and returns at once. `chosen` is called later on the interface thread with the
    /// folder's path, in the bytes of the disk; it is never called when the user thinks better of
    /// it. Asking while the question stands replaces nothing and asks nothing.
    virtual void open(Chosen chosen) = 0;
};

} // namespace Loadwick
