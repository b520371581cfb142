#include "dialogs/PlainDialogParts.h"

#include <QAbstractItemModel>
#include <QUrl>
#include <QtQuick/private/qquickaccessibleattached_p.h>
#include <QtQuickTemplates2/private/qquickabstractbutton_p.h>
#include <QtQuickTemplates2/private/qquickdialogbuttonbox_p.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

namespace Loadwick::PlainDialogParts {

QObject *partOf(const QQuickPopup &dialog, const char *type)
{
    const QList<QObject *> parts = dialog.findChildren<QObject *>();
    for (QObject *part : parts)
        if (part->inherits(type))
            return part;
    return nullptr;
}

QQuickAbstractButton *acceptingButton(const QQuickPopup &dialog)
{
    const auto *box =
        qobject_cast<QQuickDialogButtonBox *>(partOf(dialog, "QQuickDialogButtonBox"));
    return box != nullptr ? box->standardButton(QPlatformDialogHelper::Open) : nullptr;
}

int lineOf(const QUrl &file, const QAbstractItemModel &list)
{
    const int role = list.roleNames().key("fileUrl");
    for (int line = 0; line < list.rowCount(); ++line)
        if (list.index(line, 0).data(role).toUrl() == file)
            return line;
    return -1;
}

QQuickItem *nameField(const QQuickPopup &dialog)
{
    return dialog.findChild<QQuickItem *>(QStringLiteral("fileNameTextField"));
}

QQuickItem *partOfPathBar(const QQuickPopup &dialog, const char *property)
{
    const QObject *bar = partOf(dialog, "QQuickFolderBreadcrumbBar");
    return bar != nullptr ? bar->property(property).value<QQuickItem *>() : nullptr;
}

QQuickAccessibleAttached *accessible(QObject *item)
{
    QObject *attached =
        item != nullptr ? qmlAttachedPropertiesObject<QQuickAccessibleAttached>(item) : nullptr;
    return qobject_cast<QQuickAccessibleAttached *>(attached);
}

} // namespace Loadwick::PlainDialogParts
