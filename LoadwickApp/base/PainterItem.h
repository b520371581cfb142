#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

class QPainter;

namespace Loadwick {

/// An item that paints itself, into one picture in the pixels of its window. The toolkit's own
/// QQuickPaintedItem keeps two: its software renderer copies the picture when it is first painted,
/// the others keep the image beside the texture. A hidden item has no picture: those of the pages
/// in the background, and of rows that are kept for reuse, would hold tens of megabytes.
class PainterItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Its heirs paint.")

public:
    explicit PainterItem(QQuickItem *parent = nullptr);

    /// Paints the item in its own coordinates. The renderer decides which thread paints; the
    /// interface thread waits meanwhile.
    virtual void paint(QPainter *painter) = 0;

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &geometry, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
};

} // namespace Loadwick
