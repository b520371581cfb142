#include "dialogs/ListedFolder.h"

#include <QQuickItem>
#include <QUrl>
#include <QVariant>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

namespace Loadwick {
namespace {

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
    // By name: Qt tells this signal to QML alone, and to the page of the dialog before us: the
    // model has its folder by then.
    connect(&dialog, SIGNAL(currentFolderChanged(QUrl)), this, SLOT(find()));
    find();
}

void ListedFolder::find()
{
    const QUrl folder = m_dialog.property("currentFolder").toUrl();
    const bool isMistaken = folder.isLocalFile() && addressOfAddress(folder) != folder;
    if (isMistaken && m_folders.property("folder").toUrl() == folder)
        m_folders.setProperty("folder", addressOfAddress(folder));
}

} // namespace Loadwick
