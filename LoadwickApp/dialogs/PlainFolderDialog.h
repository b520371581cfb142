#pragma once

#include <QAbstractItemModel>
#include <QObject>
#include <QPointer>
#include <QQuickItem>

class QQuickPopup;

namespace Loadwick {

/// What choosing means in the folder dialog that Qt draws inside the window: the folder whose path
/// is shown, until the user highlights a line below it, and then that folder for as long as it is
/// there. Qt by itself highlights a line unasked in each folder that is entered and whenever a
/// folder comes or goes in it, and has nothing to choose in a folder without folders. Belongs to
/// the dialog.
class PlainFolderDialog final : public QObject
{
    Q_OBJECT

public:
    /// After each opening of the dialog: what was highlighted at an earlier one is so no longer.
    static void takeOver(QQuickPopup &dialog);

private Q_SLOTS:
    void chooseShownFolder();
    void keepChoice();
    void sayWhatIsChosen();
    void leaveHiddenPathField();
    void focusList();

private:
    explicit PlainFolderDialog(QQuickPopup &dialog);

    void choose(const QUrl &folder, int line);

    QQuickPopup &m_dialog;
    QPointer<QQuickItem> m_list;
    QPointer<QAbstractItemModel> m_folders;
    QPointer<QQuickItem> m_pathField;
    QPointer<QObject> m_button;
};

} // namespace Loadwick
