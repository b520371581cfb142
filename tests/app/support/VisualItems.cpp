#include "support/VisualItems.h"

#include <QTest>

namespace Loadwick {

QList<QQuickItem *> visibleItems(QQuickItem *root, const QString &objectName)
{
    QList<QQuickItem *> found;
    const QList<QQuickItem *> children = root->childItems();
    for (QQuickItem *child : children) {
        if (!child->isVisible())
            continue;
        if (child->objectName() == objectName)
            found.append(child);
        found.append(visibleItems(child, objectName));
    }
    return found;
}

QList<QQuickItem *> shownItems(const QQuickItem &root)
{
    QList<QQuickItem *> found;
    const QList<QQuickItem *> children = root.childItems();
    for (QQuickItem *child : children) {
        if (!child->isVisible() || child->opacity() <= 0)
            continue;
        found.append(child);
        found.append(shownItems(*child));
    }
    return found;
}

void expandSections(const QQuickItem &root)
{
    for (QQuickItem *item : shownItems(root)) {
        if (item->property("isExpanded").isValid())
            item->setProperty("isExpanded", true);
    }
}

bool settles(QQuickWindow &window)
{
    QList<QRectF> places;
    return QTest::qWaitFor([&] {
        QList<QRectF> now;
        if (!window.grabWindow().isNull())
            for (const QQuickItem *item : shownItems(*window.contentItem()))
                now << item->mapRectToScene(item->boundingRect());
        std::swap(places, now);
        return places == now;
    });
}

qreal rightEdge(const QQuickItem *item)
{
    return item->mapToScene(QPointF(item->width(), 0)).x();
}

} // namespace Loadwick
