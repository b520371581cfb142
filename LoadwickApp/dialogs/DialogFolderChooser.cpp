#include "dialogs/DialogFolderChooser.h"

#include <utility>

#include "base/FolderUrl.h"

namespace Loadwick {

DialogFolderChooser::DialogFolderChooser(QUrl startFolder)
    : m_dialog(QStringLiteral("FolderChooserDialog.qml"), std::move(startFolder))
{}

void DialogFolderChooser::open(Chosen chosen)
{
    if (m_chosen || m_dialog.madeFor(*this) == nullptr)
        return;
    m_chosen = std::move(chosen);
    m_dialog.open();
}

void DialogFolderChooser::accept(const QUrl &folder)
{
    const Chosen chosen = std::exchange(m_chosen, {});
    const auto path = folderPath(folder);
    if (chosen && path)
        chosen(*path);
}

void DialogFolderChooser::reject()
{
    m_chosen = {};
}

} // namespace Loadwick
