#include "compare/BarRow.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

namespace Loadwick {
namespace {

constexpr qreal cornerRadius = 4;

void write(QPainter &painter, const QRectF &place, Qt::Alignment side, const QString &words)
{
    painter.drawText(
        place, static_cast<int>(side | Qt::AlignAbsolute | Qt::AlignVCenter) | Qt::TextSingleLine,
        words);
}

} // namespace

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
    if (!m_place.isEmpty())
        return m_name + u'\n' + m_place;
    const bool isCut = m_style && QFontMetricsF(nameFont()).horizontalAdvance(m_name) >
                                      std::ceil(places().name.width());
    return isCut || m_arrangement == Heading ? m_name : QString();
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
    switch (m_arrangement) {
    case Stacked: {
        const qreal advance = QFontMetricsF(m_style->valueFont).horizontalAdvance(m_value);
        return BarRowPlaces::stacked(size(), lineHeight, std::ceil(advance), m_length);
    }
    case InLine:
        return BarRowPlaces::inLine(size(), m_style->nameWidth, m_style->valueWidth, m_length);
    case Heading:
        break;
    }
    return BarRowPlaces::heading(size(), lineHeight);
}

const QFont &BarRow::nameFont() const
{
    return m_arrangement == Heading ? m_style->headingFont : m_style->nameFont;
}

// Beside bars names are quiet; over a bar only those of which there is none.
QColor BarRow::nameColor() const
{
    const bool isQuiet = m_arrangement == InLine || (m_arrangement == Stacked && !m_isRecorded);
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
    painter.setBrush(m_fill);
    painter.drawRoundedRect(places.bar, radius, radius);
}

void BarRow::paintWords(QPainter &painter, const BarRowPlaces &places) const
{
    const Qt::Alignment start = m_style->isMirrored ? Qt::AlignRight : Qt::AlignLeft;
    const Qt::Alignment end = m_style->isMirrored ? Qt::AlignLeft : Qt::AlignRight;
    painter.setFont(nameFont());
    painter.setPen(nameColor());
    write(painter, places.name, start,
          QFontMetricsF(nameFont()).elidedText(m_name, Qt::ElideMiddle, places.name.width()));
    painter.setFont(m_style->valueFont);
    painter.setPen(m_isRecorded ? m_style->text : m_style->secondaryText);
    write(painter, places.value, end, m_value);
}

} // namespace Loadwick

#include "moc_BarRow.cpp"
