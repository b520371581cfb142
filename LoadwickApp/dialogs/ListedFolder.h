#pragma once

#include <QObject>

class QQuickPopup;

namespace Loadwick {

/// Has the list of a dialog that Qt draws inside the window show what is in a folder with "#", "?"
/// or "%" in its path. The model of the list, in Qt 6.4, takes the path of its folder for an
/// address once more, and so finds another folder or none. Belongs to the dialog.
class ListedFolder final : public QObject
{
    Q_OBJECT

public:
    /// Once is enough, more is no harm.
    static void takeOver(QQuickPopup &dialog);

private Q_SLOTS:
    void find();

private:
    ListedFolder(QQuickPopup &dialog, QObject &folders);

    QQuickPopup &m_dialog;
    QObject &m_folders;
};

} // namespace Loadwick
