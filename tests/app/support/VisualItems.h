#pragma once

#include <QList>
#include <QQuickItem>
#include <QString>

namespace Loadwick {

/// The visible items of that objectName below `root`, in the order of the tree: also those that
/// views and repeaters made.
[[nodiscard]] QList<QQuickItem *> visibleItems(QQuickItem *root, const QString &objectName);

/// All items below `root` of which anything can be seen, in the order of the tree.
[[nodiscard]] QList<QQuickItem *> shownItems(const QQuickItem &root);

/// Where the item ends on the trailing side, in the coordinates of its window.
[[nodiscard]] qreal rightEdge(const QQuickItem *item);

} // namespace Loadwick
