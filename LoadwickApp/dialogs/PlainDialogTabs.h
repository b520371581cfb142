#pragma once

#include <QObject>
#include <QPointer>

class QQuickAbstractButton;
class QQuickItem;
class QQuickPopup;

namespace Loadwick {

/// Where Tab leads in a dialog that Qt draws inside the window: round through the path, the list
/// and the buttons, and always to something that shows that it has the keyboard. Qt by itself
/// leaves out the list, and stops at what holds the buttons and the path. Belongs to the dialog.
class PlainDialogTabs final : public QObject
{
    Q_OBJECT

public:
    /// Once is enough, more is no harm.
    static void takeOver(QQuickPopup &dialog);

private:
    explicit PlainDialogTabs(QQuickPopup &dialog);

    void leadThroughList(const QQuickPopup &dialog);
    void offerButtonFirst();
    void enterPath();
    void enterButtons();

    QPointer<QQuickItem> m_list;
    QPointer<QQuickItem> m_path;
    QPointer<QQuickItem> m_buttons;
    QPointer<QQuickAbstractButton> m_button;
};

} // namespace Loadwick
