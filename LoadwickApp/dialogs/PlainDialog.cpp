#include "dialogs/PlainDialog.h"

#include <QCoreApplication>
#include <QtQuick/private/qquickaccessibleattached_p.h>
#include <QtQuick/private/qquicktextinput_p.h>
#include <QtQuickTemplates2/private/qquickabstractbutton_p.h>
#include <QtQuickTemplates2/private/qquickoverlay_p.h>
#include <QtQuickTemplates2/private/qquickoverlay_p_p.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

#include "base/FolderUrl.h"
#include "dialogs/EnterPress.h"
#include "dialogs/ListKeys.h"
#include "dialogs/ListedFolder.h"
#include "dialogs/PlainDialogLook.h"
#include "dialogs/PlainDialogParts.h"
#include "dialogs/PlainDialogTabs.h"
#include "dialogs/PlainFolderDialog.h"
#include "dialogs/PlainSaveDialog.h"

namespace Loadwick::PlainDialog {
namespace {

using PlainDialogParts::acceptingButton;
using PlainDialogParts::partOf;

bool isPlainDialog(const QQuickPopup &popup)
{
    return popup.isVisible() &&
           (popup.inherits("QQuickFileDialogImpl") || popup.inherits("QQuickFolderDialogImpl"));
}

// Qt leaves the rest of the window within reach, and takes a press on it for the dialog's end.
void standInFront(QQuickPopup &dialog)
{
    dialog.setClosePolicy(QQuickPopup::CloseOnEscape);
    dialog.setModal(true);
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

// Qt itself takes what is typed for an address: of no scheme, only as far as a "#", and below the
// folder even where it is a whole path.
void forgetAnswers(const QQuickTextInput &name)
{
    // Also ours of an earlier opening.
    QObject::disconnect(&name, &QQuickTextInput::textEdited, nullptr, nullptr);
    QObject::disconnect(&name, &QQuickTextInput::editingFinished, nullptr, nullptr);
    QObject::disconnect(&name, &QQuickTextInput::accepted, nullptr, nullptr);
}

void acceptByEnter(const QQuickPopup &dialog, const QQuickTextInput &name)
{
    QQuickAbstractButton *button = acceptingButton(dialog);
    if (button == nullptr)
        return;
    QObject::connect(&name, &QQuickTextInput::accepted, button, [button] {
        if (button->isEnabled())
            Q_EMIT button->clicked();
    });
}

// The field shows the last part of the file that is selected, and a path that is typed is more.
void keepText(QQuickTextInput &field, const QString &text, int cursor)
{
    if (field.text() == text)
        return;
    field.setText(text);
    field.setCursorPosition(cursor);
}

void takeTypedName(QQuickPopup &dialog, QQuickTextInput &name)
{
    QObject::connect(&name, &QQuickTextInput::textEdited, &dialog, [&dialog, &name] {
        const QString text = name.text();
        const int cursor = name.cursorPosition();
        const QUrl folder = dialog.property("currentFolder").toUrl();
        dialog.setProperty("selectedFile", text.isEmpty() ? QUrl() : typedFileUrl(folder, text));
        keepText(name, text, cursor);
    });
}

// What is typed takes the place of the name that is suggested.
void beginWithName(QQuickItem &field)
{
    field.forceActiveFocus(Qt::PopupFocusReason);
    if (auto *name = qobject_cast<QQuickTextInput *>(&field))
        name->selectAll();
}

} // namespace

void makeReachable(QQuickWindow &window)
{
    const auto &popups = QQuickOverlayPrivate::get(QQuickOverlay::overlay(&window))->allPopups;
    for (QQuickPopup *popup : popups) {
        if (!isPlainDialog(*popup))
            continue;
        standInFront(*popup);
        QQuickItem *fileName = PlainDialogParts::nameField(*popup);
        nameParts(*popup, fileName);
        EnterPress::takeOver(*popup);
        PlainDialogLook::takeOver(*popup);
        PlainDialogTabs::takeOver(*popup);
        ListedFolder::takeOver(*popup);
        ListKeys::takeOver(*popup);
        if (auto *name = qobject_cast<QQuickTextInput *>(fileName)) {
            forgetAnswers(*name);
            acceptByEnter(*popup, *name);
            takeTypedName(*popup, *name);
            PlainSaveDialog::takeOver(*popup);
        }
        if (popup->inherits("QQuickFolderDialogImpl"))
            PlainFolderDialog::takeOver(*popup);
        popup->forceActiveFocus(Qt::PopupFocusReason);
        if (fileName != nullptr && fileName->isVisible())
            beginWithName(*fileName);
    }
}

} // namespace Loadwick::PlainDialog
