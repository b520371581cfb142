#include "base/PainterItem.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

namespace Loadwick {

PainterItem::PainterItem(QQuickItem *parent) : QQuickItem(parent)
{
    setAntialiasing(true);
    setFlag(ItemHasContents);
}

QSGNode *PainterItem::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    const QSize place(qRound(width()), qRound(height()));
    if (!isVisible() || place.isEmpty()) {
        delete node;
        return nullptr;
    }
    const qreal scale = window()->effectiveDevicePixelRatio();
    QImage picture((QSizeF(place) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    {
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing, antialiasing());
        painter.scale(scale, scale);
        paint(&painter);
    }
    auto *const image =
        node != nullptr ? static_cast<QSGImageNode *>(node) : window()->createImageNode();
    image->setOwnsTexture(true);
    image->setTexture(window()->createTextureFromImage(picture));
    image->setFiltering(QSGTexture::Linear);
    image->setSourceRect(picture.rect());
    image->setRect(QRect(QPoint(), place));
    return image;
}

void PainterItem::geometryChange(const QRectF &geometry, const QRectF &before)
{
    QQuickItem::geometryChange(geometry, before);
    if (geometry.size() != before.size())
        update();
}

void PainterItem::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemVisibleHasChanged || change == ItemDevicePixelRatioHasChanged)
        update();
}

} // namespace Loadwick

#include "moc_PainterItem.cpp"
