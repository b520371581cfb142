#include "dialogs/EnterPress.h"

#include <QKeyEvent>
#include <QQuickWindow>
#include <QtQuickTemplates2/private/qquickabstractbutton_p.h>
#include <QtQuickTemplates2/private/qquickitemdelegate_p.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

namespace Loadwick {
namespace {

bool isEnter(const QEvent &event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto &press = static_cast<const QKeyEvent &>(event);
    return !press.isAutoRepeat() && (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter);
}

QQuickAbstractButton *focusedButton(const QQuickItem &item)
{
    QQuickItem *focused = item.window() != nullptr ? item.window()->activeFocusItem() : nullptr;
    const bool isLine = qobject_cast<QQuickItemDelegate *>(focused) != nullptr;
    return isLine ? nullptr : qobject_cast<QQuickAbstractButton *>(focused);
}

} // namespace

void EnterPress::takeOver(QQuickPopup &dialog)
{
    if (dialog.findChild<EnterPress *>(QString(), Qt::FindDirectChildrenOnly) != nullptr)
        return;
    // The item of the whole dialog gets each key that the focused part left alone.
    dialog.contentItem()->parentItem()->installEventFilter(new EnterPress(&dialog));
}

bool EnterPress::eventFilter(QObject *watched, QEvent *event)
{
    const auto *dialog = qobject_cast<QQuickItem *>(watched);
    auto *button = dialog != nullptr && isEnter(*event) ? focusedButton(*dialog) : nullptr;
    if (button == nullptr)
        return QObject::eventFilter(watched, event);
    Q_EMIT button->clicked();
    return true;
}

} // namespace Loadwick
