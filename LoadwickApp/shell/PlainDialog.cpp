#include "shell/PlainDialog.h"

#include <QCoreApplication>
#include <QtQuick/private/qquickaccessibleattached_p.h>
#include <QtQuickTemplates2/private/qquickoverlay_p.h>
#include <QtQuickTemplates2/private/qquickoverlay_p_p.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

namespace Loadwick::PlainDialog {
namespace {

bool isPlainDialog(const QQuickPopup &popup)
{
    return popup.isVisible() &&
           (popup.inherits("QQuickFileDialogImpl") || popup.inherits("QQuickFolderDialogImpl"));
}

QObject *partOf(const QQuickPopup &dialog, const char *type)
{
    const QList<QObject *> parts = dialog.findChildren<QObject *>();
    for (QObject *part : parts)
        if (part->inherits(type))
            return part;
    return nullptr;
}

void name(QObject *item, const QString &words)
{
    QObject *attached =
        item != nullptr ? qmlAttachedPropertiesObject<QQuickAccessibleAttached>(item) : nullptr;
    if (auto *accessible = qobject_cast<QQuickAccessibleAttached *>(attached))
        accessible->setName(words);
}

void nameParts(const QQuickPopup &dialog, QQuickItem *fileName)
{
    name(fileName, QCoreApplication::translate("PlainDialog", "File name"));
    name(partOf(dialog, "QQuickComboBox"), QCoreApplication::translate("PlainDialog", "Filter"));
    if (const QObject *bar = partOf(dialog, "QQuickFolderBreadcrumbBar"))
        name(bar->property("upButton").value<QQuickItem *>(),
             QCoreApplication::translate("PlainDialog", "Folder above"));
}

} // namespace

void makeReachable(QQuickWindow &window)
{
    const auto &popups = QQuickOverlayPrivate::get(QQuickOverlay::overlay(&window))->allPopups;
    for (QQuickPopup *popup : popups) {
        if (!isPlainDialog(*popup))
            continue;
        auto *fileName = popup->findChild<QQuickItem *>(QStringLiteral("fileNameTextField"));
        nameParts(*popup, fileName);
        popup->forceActiveFocus(Qt::PopupFocusReason);
        if (fileName != nullptr && fileName->isVisible())
            fileName->forceActiveFocus(Qt::PopupFocusReason);
    }
}

} // namespace Loadwick::PlainDialog
