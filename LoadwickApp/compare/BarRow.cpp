#include "compare/BarRow.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

namespace Loadwick {
namespace {

constexpr qreal barHeight = 8;
constexpr qreal barMargin = 4; // below a bar, to the next row
constexpr qreal lineGap = 2;   // between words and what is below them
constexpr qreal nameGap = 8;
constexpr qreal columnGap = 12;
constexpr qreal leastBar = 2; // a single token is visible
constexpr qreal cornerRadius = 4;

QRectF barOn(const QRectF &track, double length)
{
    QRectF bar = track;
    bar.setWidth(length > 0 ? std::min(track.width(), std::max(leastBar, length * track.width()))
                            : 0);
    return bar;
}

QRectF mirroredIn(qreal rowWidth, const QRectF &place)
{
    return {rowWidth - place.right(), place.top(), place.width(), place.height()};
}

void write(QPainter &painter, const QRectF &place, Qt::Alignment side, const QString &words)
{
    painter.drawText(
        place, static_cast<int>(side | Qt::AlignAbsolute | Qt::AlignVCenter) | Qt::TextSingleLine,
        words);
}

} // namespace

BarRowPlaces BarRowPlaces::stacked(const QSizeF &row, qreal lineHeight, qreal valueWidth,
                                   double length)
{
    const QRectF track(0, row.height() - barMargin - barHeight, row.width(), barHeight);
    const qreal top = track.top() - lineGap - lineHeight;
    const qreal nameWidth = std::max(0.0, row.width() - valueWidth - nameGap);
    return {.name = {0, top, nameWidth, lineHeight},
            .value = {row.width() - valueWidth, top, valueWidth, lineHeight},
            .track = track,
            .bar = barOn(track, length)};
}

BarRowPlaces BarRowPlaces::inLine(const QSizeF &row, qreal nameWidth, qreal valueWidth,
                                  double length)
{
    const QRectF value(row.width() - valueWidth, 0, valueWidth, row.height());
    const qreal start = nameWidth + columnGap;
    const QRectF track(start, (row.height() - barHeight) / 2,
                       std::max(0.0, value.left() - columnGap - start), barHeight);
    return {.name = {0, 0, nameWidth, row.height()},
            .value = value,
            .track = track,
            .bar = barOn(track, length)};
}

BarRowPlaces BarRowPlaces::heading(const QSizeF &row, qreal lineHeight)
{
    return {.name = {0, row.height() - lineGap - lineHeight, row.width(), lineHeight},
            .value = {},
            .track = {},
            .bar = {}};
}

BarRowPlaces BarRowPlaces::mirrored(qreal rowWidth) const
{
    return {.name = mirroredIn(rowWidth, name),
            .value = mirroredIn(rowWidth, value),
            .track = mirroredIn(rowWidth, track),
            .bar = mirroredIn(rowWidth, bar)};
}

BarRow::BarRow(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &BarRow::changed, this, [this] { update(); });
}

void BarRow::setStyle(BarStyle *style)
{
    if (m_style == style)
        return;
    if (m_style)
        m_style->disconnect(this);
    m_style = style;
    if (m_style)
        connect(m_style, &BarStyle::changed, this, [this] { update(); });
    update();
    Q_EMIT styleChanged();
}

QString BarRow::tip() const
{
    if (!place.isEmpty())
        return name + u'\n' + place;
    const bool isCut = m_style && QFontMetricsF(nameFont()).horizontalAdvance(name) >
                                      std::ceil(places().name.width());
    return isCut || arrangement == Heading ? name : QString();
}

BarRowPlaces BarRow::places() const
{
    if (!m_style)
        return {};
    const BarRowPlaces places = unmirroredPlaces();
    return m_style->isMirrored ? places.mirrored(width()) : places;
}

BarRowPlaces BarRow::unmirroredPlaces() const
{
    const qreal lineHeight = std::ceil(QFontMetricsF(nameFont()).height());
    switch (arrangement) {
    case Stacked: {
        const qreal advance = QFontMetricsF(m_style->valueFont).horizontalAdvance(value);
        return BarRowPlaces::stacked(size(), lineHeight, std::ceil(advance), length);
    }
    case InLine:
        return BarRowPlaces::inLine(size(), m_style->nameWidth, m_style->valueWidth, length);
    case Heading:
        break;
    }
    return BarRowPlaces::heading(size(), lineHeight);
}

const QFont &BarRow::nameFont() const
{
    return arrangement == Heading ? m_style->headingFont : m_style->nameFont;
}

// Beside bars all names are quiet; above bars only the name of a missing one.
QColor BarRow::nameColor() const
{
    const bool isQuiet = arrangement == InLine || (arrangement == Stacked && !isRecorded);
    return isQuiet ? m_style->secondaryText : m_style->text;
}

void BarRow::paint(QPainter *painter)
{
    if (!m_style)
        return;
    const BarRowPlaces where = places();
    paintBar(*painter, where);
    paintWords(*painter, where);
}

void BarRow::paintBar(QPainter &painter, const BarRowPlaces &places) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_style->track);
    painter.drawRoundedRect(places.track, cornerRadius, cornerRadius);
    const qreal radius = std::min(cornerRadius, places.bar.width() / 2);
    painter.setBrush(fill);
    painter.drawRoundedRect(places.bar, radius, radius);
}

void BarRow::paintWords(QPainter &painter, const BarRowPlaces &places) const
{
    const Qt::Alignment start = m_style->isMirrored ? Qt::AlignRight : Qt::AlignLeft;
    const Qt::Alignment end = m_style->isMirrored ? Qt::AlignLeft : Qt::AlignRight;
    painter.setFont(nameFont());
    painter.setPen(nameColor());
    write(painter, places.name, start,
          QFontMetricsF(nameFont()).elidedText(name, Qt::ElideMiddle, places.name.width()));
    painter.setFont(m_style->valueFont);
    painter.setPen(isRecorded ? m_style->text : m_style->secondaryText);
    write(painter, places.value, end, value);
}

} // namespace Loadwick

#include "moc_BarRow.cpp"
