#pragma once

#include <filesystem>
#include <functional>

#include <QObject>

#include "dialogs/FolderChooser.h"

namespace Loadwick {

/// Answers in the place of the user, with whatever folder it is told at that moment. It can name
/// folders that a dialog cannot, such as those whose names are not text.
class GivenFolderChooser final : public FolderChooser
{
public:
    using Answer = std::function<std::filesystem::path()>;

    explicit GivenFolderChooser(Answer answer);

    void open(Chosen chosen) override;

private:
    Answer m_answer;
    QObject m_interface; ///< no answer comes once this object is gone
};

} // namespace Loadwick
