#pragma once

#include <QAbstractItemModel>
#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QString>

class QQuickPopup;

namespace Loadwick {

/// In the dialog that Qt draws inside the window to save a file, the name outlives a change of
/// folder: the one that was suggested, typed or taken from a file of the list. Qt by itself puts
/// that of a folder in its place, or none. The ending of the name follows the kind of file that is
/// chosen. Folders stand first in the list, and of the files the one is highlighted whose name is
/// shown. Belongs to the dialog.
class PlainSaveDialog final : public QObject
{
    Q_OBJECT

public:
    /// After each opening of the dialog, with the name that is suggested in it.
    static void takeOver(QQuickPopup &dialog);

private Q_SLOTS:
    void takeSuggestedName();
    void takeTypedName();
    void takeNameOfLine();
    void keepName();
    void takeKind();
    void keepLine();

private:
    explicit PlainSaveDialog(QQuickPopup &dialog);
    void leaveLine();
    /// Whether the folder that is shown was typed in place of a name.
    [[nodiscard]] bool isShownBecauseTyped() const;

    QQuickPopup &m_dialog;
    QPointer<QQuickItem> m_field;
    QPointer<QQuickItem> m_list;
    QPointer<QAbstractItemModel> m_files;
    QString m_suggested;
    QString m_name;
    QString m_typedPath;
};

} // namespace Loadwick
