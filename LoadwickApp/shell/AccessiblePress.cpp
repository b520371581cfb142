#include "shell/AccessiblePress.h"

#include <QAccessible>
#include <QtQuick/private/qaccessiblequickitem_p.h>
#include <QtQuickTemplates2/private/qquickabstractbutton_p.h>
#include <QtQuickTemplates2/private/qquickaction_p.h>

#include "shell/ModalGround.h"

namespace Loadwick::AccessiblePress {
namespace {

void toggleIfCheckable(QQuickAbstractButton &button)
{
    const bool isTheChosenOneOfAGroup = button.autoExclusive() && button.isChecked();
    if (button.isCheckable() && !isTheChosenOneOfAGroup)
        button.toggle();
}

void press(QQuickAbstractButton &button)
{
    if (!button.isEnabled())
        return;
    toggleIfCheckable(button);
    if (QQuickAction *action = button.action())
        action->trigger(&button);
    Q_EMIT button.clicked();
}

class AccessibleButton final : public QAccessibleQuickItem
{
public:
    explicit AccessibleButton(QQuickAbstractButton &button)
        : QAccessibleQuickItem(&button), m_button(button)
    {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleQuickItem::state();
        if (!m_button.isEnabled()) {
            state.disabled = true;
            state.focusable = false;
        }
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleQuickItem::actionNames();
        names.removeAll(pressAction());
        names.prepend(pressAction());
        names.removeDuplicates();
        return names;
    }

    void doAction(const QString &name) override
    {
        if (ModalGround::hides(m_button))
            return;
        if (name == pressAction() || name == toggleAction())
            press(m_button);
        else
            QAccessibleQuickItem::doAction(name);
    }

private:
    QQuickAbstractButton &m_button;
};

/// An item that can show a menu, which a mouse opens by its right button.
class AccessibleMenuOwner final : public QAccessibleQuickItem
{
public:
    explicit AccessibleMenuOwner(QQuickItem &item) : QAccessibleQuickItem(&item), m_item(item) {}

    QStringList actionNames() const override
    {
        return QAccessibleQuickItem::actionNames() + QStringList(showMenuAction());
    }

    void doAction(const QString &name) override
    {
        if (ModalGround::hides(m_item))
            return;
        if (name == showMenuAction())
            QMetaObject::invokeMethod(&m_item, menuMethod);
        else
            QAccessibleQuickItem::doAction(name);
    }

    static constexpr auto menuMethod = "showMenu";

private:
    QQuickItem &m_item;
};

QAccessibleInterface *accessibleMenuOwner(const QString &className, QObject *object)
{
    if (className != QLatin1String("QQuickItem") ||
        object->metaObject()->indexOfMethod("showMenu()") < 0)
        return nullptr;
    auto *item = qobject_cast<QQuickItem *>(object);
    return item != nullptr ? new AccessibleMenuOwner(*item) : nullptr;
}

QAccessibleInterface *accessibleButton(const QString &className, QObject *object)
{
    if (className != QLatin1String("QQuickAbstractButton"))
        return nullptr;
    auto *button = qobject_cast<QQuickAbstractButton *>(object);
    return button != nullptr ? new AccessibleButton(*button) : nullptr;
}

} // namespace

void install()
{
    QAccessible::installFactory(accessibleButton);
    QAccessible::installFactory(accessibleMenuOwner);
}

} // namespace Loadwick::AccessiblePress
