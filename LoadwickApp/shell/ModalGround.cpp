#include "shell/ModalGround.h"

#include <algorithm>

#include <QAccessible>
#include <QAccessibleObject>
#include <QQuickWindow>

namespace Loadwick {
namespace {

/// The nearest accessible descendants, searched through items that are not accessible.
void appendAccessible(const QQuickItem &item, QList<QAccessibleInterface *> &found)
{
    for (QQuickItem *child : item.childItems()) {
        if (QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(child))
            found.append(accessible);
        else
            appendAccessible(*child, found);
    }
}

/// An item that Qt ignores passes its children to its parent, so ignoring would hide nothing.
class AccessibleGround final : public QAccessibleObject
{
public:
    explicit AccessibleGround(ModalGround &ground) : QAccessibleObject(&ground), m_ground(ground) {}

    QWindow *window() const override { return m_ground.window(); }

    QAccessibleInterface *parent() const override
    {
        QAccessibleInterface *found = nullptr;
        for (QQuickItem *above = m_ground.parentItem(); above != nullptr && found == nullptr;
             above = above->parentItem())
            found = QAccessible::queryAccessibleInterface(above);
        return found != nullptr ? found : QAccessible::queryAccessibleInterface(m_ground.window());
    }

    int childCount() const override { return static_cast<int>(children().size()); }
    QAccessibleInterface *child(int index) const override { return children().value(index); }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return static_cast<int>(children().indexOf(child));
    }

    QAccessibleInterface *focusChild() const override
    {
        QQuickItem *const focused =
            m_ground.window() != nullptr ? m_ground.window()->activeFocusItem() : nullptr;
        const bool isHere = focused != nullptr && m_ground.isAncestorOf(focused);
        return isHere && !m_ground.isCovered() ? QAccessible::queryAccessibleInterface(focused)
                                               : nullptr;
    }

    QString text(QAccessible::Text) const override { return {}; }
    QAccessible::Role role() const override { return QAccessible::Pane; }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = !m_ground.isVisible();
        return state;
    }

    QRect rect() const override
    {
        const QPointF corner = m_ground.mapToGlobal(QPointF());
        return QRectF(corner, m_ground.size()).toRect();
    }

private:
    [[nodiscard]] QList<QAccessibleInterface *> children() const
    {
        QList<QAccessibleInterface *> found;
        if (!m_ground.isCovered())
            appendAccessible(m_ground, found);
        return found;
    }

    ModalGround &m_ground;
};

QAccessibleInterface *accessibleGround(const QString &className, QObject *object)
{
    if (className != QLatin1String(ModalGround::staticMetaObject.className()))
        return nullptr;
    auto *ground = qobject_cast<ModalGround *>(object);
    return ground != nullptr ? new AccessibleGround(*ground) : nullptr;
}

bool isModalSheet(const QQuickItem &item)
{
    const QObject *popup = item.parent();
    return popup != nullptr && popup->inherits("QQuickPopup") &&
           popup->property("modal").toBool() && popup->property("visible").toBool();
}

} // namespace

void ModalGround::install()
{
    QAccessible::installFactory(accessibleGround);
}

// Qt Quick keeps the open popups of a window in one item over its content.
bool ModalGround::isCovered() const
{
    if (window() == nullptr)
        return false;
    for (const QQuickItem *layer : window()->contentItem()->childItems()) {
        const QList<QQuickItem *> sheets =
            layer->inherits("QQuickOverlay") ? layer->childItems() : QList<QQuickItem *>();
        if (std::ranges::any_of(sheets, [](const auto *sheet) { return isModalSheet(*sheet); }))
            return true;
    }
    return false;
}

bool ModalGround::hides(const QQuickItem &item)
{
    const QQuickItem *above = &item;
    while (above != nullptr && qobject_cast<const ModalGround *>(above) == nullptr)
        above = above->parentItem();
    return above != nullptr && static_cast<const ModalGround *>(above)->isCovered();
}

} // namespace Loadwick

#include "moc_ModalGround.cpp"
