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

} // namespace

Symbol::Symbol(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setImplicitSize(naturalSize, naturalSize);
    setAntialiasing(true);
}

Symbol::~Symbol() = default;

void Symbol::setName(const QString &name)
{
    if (m_name == name)
        return;
    m_name = name;
    const QString file = SymbolCatalog::file(name);
    m_drawing = file.isEmpty() ? nullptr : std::make_unique<QSvgRenderer>(file);
    if (file.isEmpty() && !name.isEmpty())
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

void Symbol::setAngle(qreal angle)
{
    if (qFuzzyCompare(1 + m_angle, 1 + angle))
        return;
    m_angle = angle;
    Q_EMIT angleChanged();
    update();
}

void Symbol::paint(QPainter *painter)
{
    const qreal side = std::min(width(), height());
    const int pixels = qRound(side * painter->deviceTransform().m11());
    if (!m_drawing || pixels <= 0)
        return;
    const QRectF square((width() - side) / 2, (height() - side) / 2, side, side);
    painter->drawImage(square, drawn(pixels));
}

// A drawing is black on nothing; the tint takes the place of the black. Drawn at the size in device
// pixels and coloured as a whole, overlapping strokes of a translucent tint leave no seams.
QImage Symbol::drawn(int side) const
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(side / 2.0, side / 2.0);
    painter.rotate(m_angle);
    m_drawing->render(&painter, QRectF(-side / 2.0, -side / 2.0, side, side));
    painter.resetTransform();
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), m_tint);
    return image;
}

} // namespace Loadwick
