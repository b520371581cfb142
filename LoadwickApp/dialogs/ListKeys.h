#pragma once

#include <QObject>

class QQuickItem;
class QQuickPopup;

namespace Loadwick {

/// Home, End, Page Up and Page Down in the list of a dialog that Qt draws inside the window, which
/// by itself knows the arrow keys alone. Belongs to the dialog.
class ListKeys final : public QObject
{
    Q_OBJECT

public:
    /// Once is enough, more is no harm.
    static void takeOver(QQuickPopup &dialog);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit ListKeys(QQuickPopup &dialog);

    QQuickItem &m_list;
};

} // namespace Loadwick
