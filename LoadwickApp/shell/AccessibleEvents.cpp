#include "shell/AccessibleEvents.h"

#include <QAccessible>
#include <QtGui/private/qguiapplication_p.h>
#include <QtQuick/private/qquickitem_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

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

bool isBeingCreated(QObject *object)
{
    auto *item = qobject_cast<QQuickItem *>(object);
    return item != nullptr && !QQuickItemPrivate::get(item)->componentComplete;
}

void forward(QAccessibleEvent *event)
{
    if (describes(event->type()) && isBeingCreated(event->object()))
        return;
    if (auto *bus = QGuiApplicationPrivate::platformIntegration()->accessibility())
        bus->notifyAccessibilityUpdate(event);
}

} // namespace

void install()
{
    QAccessible::installUpdateHandler(forward);
}

} // namespace Loadwick::AccessibleEvents
