#pragma once

#include <filesystem>
#include <optional>

#include "dialogs/FolderChooser.h"

namespace Loadwick {

/// Answers at once with the folder that a test has set, or never.
class FakeFolderChooser final : public FolderChooser
{
public:
    /// Absent: the user cancels.
    std::optional<std::filesystem::path> answer;
    int openCount = 0;

    void open(Chosen chosen) override;
};

} // namespace Loadwick
