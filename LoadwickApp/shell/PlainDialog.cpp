#include "shell/PlainDialog.h"

#include <QCoreApplication>
#include <QtQuick/private/qquickaccessibleattached_p.h>
#include <QtQuick/private/qquicktextinput_p.h>
#include <QtQuickTemplates2/private/qquickabstractbutton_p.h>
#include <QtQuickTemplates2/private/qquickoverlay_p.h>
#include <QtQuickTemplates2/private/qquickoverlay_p_p.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

#include "shell/EnterPress.h"
#include "shell/FolderUrl.h"
#include "shell/PlainDialogParts.h"
#include "shell/PlainFolderDialog.h"

namespace Loadwick::PlainDialog {
namespace {

using PlainDialogParts::acceptingButton;
using PlainDialogParts::partOf;

bool isPlainDialog(const QQuickPopup &popup)
{
    return popup.isVisible() &&
           (popup.inherits("QQuickFileDialogImpl") || popup.inherits("QQuickFolderDialogImpl"));
}

void name(QObject *item, const QString &words)
{
    if (auto *accessible = PlainDialogParts::accessible(item))
        accessible->setName(words);
}

void nameParts(const QQuickPopup &dialog, QQuickItem *fileName)
{
    name(fileName, QCoreApplication::translate("PlainDialog", "File name"));
    name(partOf(dialog, "QQuickComboBox"), QCoreApplication::translate("PlainDialog", "Filter"));
    name(PlainDialogParts::partOfPathBar(dialog, "upButton"),
         QCoreApplication::translate("PlainDialog", "Folder above"));
}

// Qt leaves Enter in the name without an answer.
void acceptByEnter(const QQuickPopup &dialog, const QQuickTextInput &name)
{
    QQuickAbstractButton *button = acceptingButton(dialog);
    if (button == nullptr)
        return;
    // One dialog is opened many times.
    QObject::disconnect(&name, &QQuickTextInput::accepted, button, nullptr);
    QObject::connect(&name, &QQuickTextInput::accepted, button, [button] {
        if (button->isEnabled())
            Q_EMIT button->clicked();
    });
}

// Qt itself takes what is typed for an address: of no scheme, and only as far as a "#".
void takeTypedName(QQuickPopup &dialog, const QQuickTextInput &name)
{
    QObject::disconnect(&name, &QQuickTextInput::textEdited, nullptr, nullptr);
    QObject::connect(&name, &QQuickTextInput::textEdited, &dialog, [&dialog, &name] {
        const QUrl folder = dialog.property("currentFolder").toUrl();
        dialog.setProperty("selectedFile",
                           name.text().isEmpty() ? QUrl() : fileUrl(folder, name.text()));
    });
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
        EnterPress::takeOver(*popup);
        if (const auto *name = qobject_cast<QQuickTextInput *>(fileName)) {
            acceptByEnter(*popup, *name);
            takeTypedName(*popup, *name);
        }
        if (popup->inherits("QQuickFolderDialogImpl"))
            PlainFolderDialog::takeOver(*popup);
        popup->forceActiveFocus(Qt::PopupFocusReason);
        if (fileName != nullptr && fileName->isVisible())
            fileName->forceActiveFocus(Qt::PopupFocusReason);
    }
}

} // namespace Loadwick::PlainDialog
