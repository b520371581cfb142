#pragma once

#include <QList>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>

namespace Loadwick {

/// The visible items of that objectName below `root`, in tree order, including those that views and
/// repeaters created.
[[nodiscard]] QList<QQuickItem *> visibleItems(QQuickItem *root, const QString &objectName);

/// All items below `root` that are at least partly visible, in tree order.
[[nodiscard]] QList<QQuickItem *> shownItems(const QQuickItem &root);

/// Opens all visible sections that open and close.
void expandSections(const QQuickItem &root);

/// Waits until two frames agree on the places of all items, since a layout takes some. False if
/// that takes seconds.
[[nodiscard]] bool settles(QQuickWindow &window);

/// The item's trailing edge, in the coordinates of its window.
[[nodiscard]] qreal rightEdge(const QQuickItem *item);

} // namespace Loadwick
