#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "dialogs/DialogFolderChooser.h"
#include "support/DialogWindow.h"

namespace Loadwick {

/// The folder dialog that Qt draws itself, over a folder with the folders "bare" and "repository",
/// of which the second has "docs" and "src".
class FolderDialogWindow final : public DialogWindow
{
public:
    FolderDialogWindow();

    /// Until the list has its lines.
    void open();
    /// By Enter in the path field.
    void enterPath(const std::string &path);
    /// By the button.
    [[nodiscard]] std::filesystem::path choose();

    [[nodiscard]] std::filesystem::path root() const { return folder().path(); }
    /// What the dialog answered.
    [[nodiscard]] const std::optional<std::filesystem::path> &chosen() const { return m_chosen; }
    /// Null when the list has none for a folder of that name.
    [[nodiscard]] QQuickItem *line(const char *name) const;
    [[nodiscard]] QQuickItem *button() const;
    /// Empty when no line is.
    [[nodiscard]] QString highlighted() const;

private:
    DialogFolderChooser m_chooser;
    std::optional<std::filesystem::path> m_chosen;
};

} // namespace Loadwick
