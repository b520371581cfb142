#include "icons/Symbol.h"

#include <algorithm>
#include <cmath>

#include <QCache>
#include <QDebug>
#include <QMutex>
#include <QPainter>
#include <QSvgRenderer>

#include "icons/SymbolCatalog.h"

namespace Loadwick {
namespace {

constexpr qreal naturalSize = 16;

// More than a page shows in all sizes and colours; at 16 to 64 pixels they take a megabyte.
constexpr int greatestPictureCount = 200;

constexpr qreal keptAngle = 18; // degrees: divides a step of the spinner and a quarter

} // namespace

// The renderer decides which thread paints.
QImage SymbolPictures::find(const QString &key, const std::function<QImage()> &make)
{
    static QMutex mutex;
    static QCache<QString, QImage> pictures(greatestPictureCount);
    const QMutexLocker locker(&mutex);
    if (const QImage *known = pictures.object(key))
        return *known;
    const QImage made = make();
    pictures.insert(key, new QImage(made));
    return made;
}

Symbol::Symbol(QQuickItem *parent) : PainterItem(parent)
{
    setImplicitSize(naturalSize, naturalSize);
}

Symbol::~Symbol() = default;

void Symbol::setName(const QString &name)
{
    if (m_name == name)
        return;
    m_name = name;
    m_file = SymbolCatalog::file(name);
    m_drawing.reset();
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
    if (m_file.isEmpty() || pixels <= 0)
        return;
    const QRectF square((width() - side) / 2, (height() - side) / 2, side, side);
    painter->drawImage(square, picture(pixels));
}

// The steps of what turns and the quarters of what opens are shown again; what is between two of
// them, while it moves, is not.
QImage Symbol::picture(int side)
{
    if (std::fmod(m_angle, keptAngle) != 0)
        return drawn(side);
    const QString key =
        QStringLiteral("%1 %2 %3 %4").arg(m_file).arg(side).arg(m_angle).arg(m_tint.rgba(), 0, 16);
    return SymbolPictures::find(key, [this, side] { return drawn(side); });
}

// A drawing is black on transparent; the tint replaces the black. Rendered at device resolution and
// coloured as a whole, overlapping strokes of a translucent tint leave no seams.
QImage Symbol::drawn(int side)
{
    if (!m_drawing)
        m_drawing = std::make_unique<QSvgRenderer>(m_file);
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

#include "moc_Symbol.cpp"
