#include "demo/window/ButtonPress.h"

#include <QAccessible>
#include <QWindow>

namespace Loadwick {

namespace {

bool canBePressed(QAccessibleInterface &item)
{
    return item.role() == QAccessible::Button && !item.state().disabled &&
           !item.state().invisible && item.actionInterface() != nullptr;
}

QAccessibleInterface *findButton(QAccessibleInterface &parent, const QString &name)
{
    for (int index = 0; index < parent.childCount(); ++index) {
        QAccessibleInterface *child = parent.child(index);
        if (child == nullptr)
            continue;
        if (canBePressed(*child) && child->text(QAccessible::Name) == name)
            return child;
        if (QAccessibleInterface *found = findButton(*child, name))
            return found;
    }
    return nullptr;
}

} // namespace

bool pressButton(QWindow &window, const QString &name)
{
    QAccessible::setActive(true);
    QAccessibleInterface *root = QAccessible::queryAccessibleInterface(&window);
    QAccessibleInterface *button = root == nullptr ? nullptr : findButton(*root, name);
    if (button == nullptr)
        return false;
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    return true;
}

} // namespace Loadwick
