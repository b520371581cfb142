#include "shell/AccessibleEvents.h"

#include <QAccessible>
#include <QQuickItem>

namespace Loadwick::AccessibleEvents {
namespace {

bool describes(QAccessible::Event type)
{
    switch (type) {
    case QAccessible::NameChanged:
    case QAccessible::DescriptionChanged:
    case QAccessible::TextInserted:
    case QAccessible::TextUpdated:
    case QAccessible::TextCaretMoved:
        return true;
    default:
        return false;
    }
}

/// Names the protected function, which a pointer to a member may then call on any item.
struct Item : QQuickItem
{
    static constexpr bool (QQuickItem::*isComplete)() const = &Item::isComponentComplete;
};

bool isBeingCreated(QObject *object)
{
    const auto *item = qobject_cast<QQuickItem *>(object);
    return item != nullptr && !(item->*Item::isComplete)();
}

void forward(QAccessibleEvent *event)
{
    // Qt has already applied it to its table, which must not happen twice. Only widgets have one.
    if (event->type() == QAccessible::TableModelChanged)
        return;
    if (describes(event->type()) && isBeingCreated(event->object()))
        return;
    QAccessible::installUpdateHandler(nullptr);
    QAccessible::updateAccessibility(event);
    QAccessible::installUpdateHandler(forward);
}

} // namespace

void install()
{
    QAccessible::installUpdateHandler(forward);
}

} // namespace Loadwick::AccessibleEvents
