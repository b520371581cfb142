#include "icons/Symbol.h"

#include "icons/SymbolCatalog.h"

#include <QDebug>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

namespace Loadwick {
namespace {

constexpr qreal naturalSize = 16;

// A drawing is black on nothing; the tint takes the place of the black. Drawn at the size in device
// pixels and coloured as a whole, overlapping strokes of a translucent tint leave no seams.
QImage tinted(const QString &file, const QColor &tint, int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QSvgRenderer(file).render(&painter, QRectF(0, 0, side, side));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), tint);
    return image;
}

} // namespace

Symbol::Symbol(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setImplicitSize(naturalSize, naturalSize);
    setAntialiasing(true);
}

void Symbol::setName(const QString &name)
{
    if (m_name == name)
        return;
    m_name = name;
    m_file = SymbolCatalog::file(name);
    if (m_file.isEmpty() && !name.isEmpty())
        qWarning() << "No drawing for the symbol" << name;
    Q_EMIT nameChanged();
    update();
}

void Symbol::setTint(const QColor &tint)
{
    if (m_tint == tint)
        return;
    m_tint = tint;
    Q_EMIT tintChanged();
    update();
}

void Symbol::paint(QPainter *painter)
{
    const qreal side = std::min(width(), height());
    const QTransform toDevice = painter->deviceTransform();
    const int pixels = qRound(side * toDevice.m11());
    if (m_file.isEmpty() || pixels <= 0)
        return;
    const QRectF square((width() - side) / 2, (height() - side) / 2, side, side);
    painter->drawImage(square, tinted(m_file, m_tint, pixels));
}

} // namespace Loadwick
