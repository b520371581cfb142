#include "shell/ModalGround.h"

#include <algorithm>

#include <QAccessible>
#include <QQuickWindow>
#include <QtQuick/private/qaccessiblequickitem_p.h>
#include <QtQuickTemplates2/private/qquickoverlay_p.h>
#include <QtQuickTemplates2/private/qquickoverlay_p_p.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

namespace Loadwick {
namespace {

/// Qt takes the children of an ignored item for its parent's, so that ignoring would hide nothing.
class AccessibleGround final : public QAccessibleQuickItem
{
public:
    explicit AccessibleGround(ModalGround &ground) : QAccessibleQuickItem(&ground), m_ground(ground)
    {}

    QAccessibleInterface *child(int index) const override
    {
        return m_ground.isCovered() ? nullptr : QAccessibleQuickItem::child(index);
    }

    int childCount() const override
    {
        return m_ground.isCovered() ? 0 : QAccessibleQuickItem::childCount();
    }

    QAccessibleInterface *childAt(int x, int y) const override
    {
        return m_ground.isCovered() ? nullptr : QAccessibleQuickItem::childAt(x, y);
    }

    QAccessibleInterface *focusChild() const override
    {
        return m_ground.isCovered() ? nullptr : QAccessibleQuickItem::focusChild();
    }

private:
    ModalGround &m_ground;
};

QAccessibleInterface *accessibleGround(const QString &className, QObject *object)
{
    if (className != QLatin1String(ModalGround::staticMetaObject.className()))
        return nullptr;
    auto *ground = qobject_cast<ModalGround *>(object);
    return ground != nullptr ? new AccessibleGround(*ground) : nullptr;
}

} // namespace

void ModalGround::install()
{
    QAccessible::installFactory(accessibleGround);
}

bool ModalGround::isCovered() const
{
    QQuickOverlay *const overlay = window() != nullptr ? QQuickOverlay::overlay(window()) : nullptr;
    if (overlay == nullptr)
        return false;
    const QList<QQuickPopup *> &popups = QQuickOverlayPrivate::get(overlay)->allPopups;
    return std::any_of(popups.begin(), popups.end(), [](const QQuickPopup *popup) {
        return popup->isVisible() && popup->isModal();
    });
}

bool ModalGround::hides(const QQuickItem &item)
{
    const QQuickItem *above = &item;
    while (above != nullptr && qobject_cast<const ModalGround *>(above) == nullptr)
        above = above->parentItem();
    return above != nullptr && static_cast<const ModalGround *>(above)->isCovered();
}

} // namespace Loadwick
