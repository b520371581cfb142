#pragma once

class QAbstractItemModel;
class QObject;
class QQuickAbstractButton;
class QQuickAccessibleAttached;
class QQuickItem;
class QQuickPopup;
class QUrl;

/// What the dialogs that Qt draws inside the window are made of.
namespace Loadwick::PlainDialogParts {

/// The first part of a type or of one that inherits it; null when there is none.
[[nodiscard]] QObject *partOf(const QQuickPopup &dialog, const char *type);

/// The button that ends the dialog with an answer; null when there is none.
[[nodiscard]] QQuickAbstractButton *acceptingButton(const QQuickPopup &dialog);

/// The place of a folder or file in the list of a dialog; -1 when it is not there.
[[nodiscard]] int lineOf(const QUrl &file, const QAbstractItemModel &list);

/// What the name of a file is typed into; null in a dialog for folders.
[[nodiscard]] QQuickItem *nameField(const QQuickPopup &dialog);

/// That property of the bar with the path of the folder that is shown; null when there is none.
[[nodiscard]] QQuickItem *partOfPathBar(const QQuickPopup &dialog, const char *property);

/// What assistive technology is told of an item; null for a null item.
[[nodiscard]] QQuickAccessibleAttached *accessible(QObject *item);

} // namespace Loadwick::PlainDialogParts
