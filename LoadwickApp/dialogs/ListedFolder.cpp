#include "dialogs/ListedFolder.h"

#include <QQuickItem>
#include <QUrl>
#include <QVariant>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

namespace Loadwick {
namespace {

constexpr int nothingThere = 0; // FolderListModel.Null

QUrl addressOfAddress(const QUrl &folder)
{
    return QUrl::fromLocalFile(folder.path(QUrl::FullyEncoded));
}

} // namespace

void ListedFolder::takeOver(QQuickPopup &dialog)
{
    if (dialog.findChild<ListedFolder *>(QString(), Qt::FindDirectChildrenOnly) != nullptr)
        return;
    if (auto *folders = dialog.contentItem()->property("model").value<QObject *>())
        new ListedFolder(dialog, *folders);
}

ListedFolder::ListedFolder(QQuickPopup &dialog, QObject &folders)
    : QObject(&dialog), m_dialog(dialog), m_folders(folders)
{
    // By name: Qt tells these signals to QML alone. The first of them does not come when one folder
    // after another is not found.
    connect(&folders, SIGNAL(statusChanged()), this, SLOT(find()));
    connect(&folders, SIGNAL(rowCountChanged()), this, SLOT(find()));
    find();
}

void ListedFolder::find()
{
    const QUrl folder = m_dialog.property("currentFolder").toUrl();
    const bool isRefused = m_folders.property("status").toInt() == nothingThere &&
                           m_folders.property("folder").toUrl() == folder;
    if (isRefused && folder.isLocalFile() && addressOfAddress(folder) != folder)
        m_folders.setProperty("folder", addressOfAddress(folder));
}

} // namespace Loadwick
