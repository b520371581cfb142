#include "compare/BarRow.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

#include "charts/RowPainting.h"

namespace Loadwick {
namespace {

using namespace RowPainting;

constexpr qreal barMargin = 4; // below a bar, to the next row
constexpr qreal lineGap = 2;   // between words and what is below them
constexpr qreal nameGap = 8;
constexpr qreal columnGap = 12;

QRectF barOn(const QRectF &track, double length)
{
    QRectF bar = track;
    bar.setWidth(length > 0 ? std::min(track.width(), std::max(leastBar, length * track.width()))
                            : 0);
    return bar;
}

} // namespace

BarRowLayout BarRowLayout::stacked(const QSizeF &row, qreal lineHeight, qreal valueWidth,
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

BarRowLayout BarRowLayout::inLine(const QSizeF &row, qreal nameWidth, qreal valueWidth,
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

BarRowLayout BarRowLayout::heading(const QSizeF &row, qreal lineHeight)
{
    return {.name = {0, row.height() - lineGap - lineHeight, row.width(), lineHeight},
            .value = {},
            .track = {},
            .bar = {}};
}

BarRowLayout BarRowLayout::mirrored(qreal rowWidth) const
{
    return {.name = mirroredIn(rowWidth, name),
            .value = mirroredIn(rowWidth, value),
            .track = mirroredIn(rowWidth, track),
            .bar = mirroredIn(rowWidth, bar)};
}

BarRow::BarRow(QQuickItem *parent) : PainterItem(parent)
{
    connect(this, &BarRow::changed, this, [this] { update(); });
}

void BarRow::setStyle(BarStyle *style)
{
    if (follow(*this, m_style, style))
        Q_EMIT styleChanged();
}

QString BarRow::tip() const
{
    if (!path.isEmpty())
        return name + u'\n' + path;
    const bool isCut = m_style && QFontMetricsF(nameFont()).horizontalAdvance(name) >
                                      std::ceil(layout().name.width());
    return isCut || arrangement == Heading ? name : QString();
}

BarRowLayout BarRow::layout() const
{
    if (!m_style)
        return {};
    const BarRowLayout layout = unmirroredLayout();
    return m_style->isMirrored ? layout.mirrored(width()) : layout;
}

BarRowLayout BarRow::unmirroredLayout() const
{
    const qreal lineHeight = std::ceil(QFontMetricsF(nameFont()).height());
    switch (arrangement) {
    case Stacked: {
        const qreal advance = QFontMetricsF(m_style->valueFont).horizontalAdvance(value);
        return BarRowLayout::stacked(size(), lineHeight, std::ceil(advance), length);
    }
    case InLine:
        return BarRowLayout::inLine(size(), m_style->nameWidth, m_style->valueWidth, length);
    case Heading:
        break;
    }
    return BarRowLayout::heading(size(), lineHeight);
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
    const BarRowLayout parts = layout();
    paintBar(*painter, parts);
    paintWords(*painter, parts);
}

void BarRow::paintBar(QPainter &painter, const BarRowLayout &layout) const
{
    fillBar(painter, layout.track, m_style->track);
    fillBar(painter, layout.bar, fill);
}

void BarRow::paintWords(QPainter &painter, const BarRowLayout &layout) const
{
    const Qt::Alignment start = m_style->isMirrored ? Qt::AlignRight : Qt::AlignLeft;
    const Qt::Alignment end = m_style->isMirrored ? Qt::AlignLeft : Qt::AlignRight;
    painter.setFont(nameFont());
    painter.setPen(nameColor());
    write(painter, layout.name, start,
          QFontMetricsF(nameFont()).elidedText(name, Qt::ElideMiddle, layout.name.width()));
    painter.setFont(m_style->valueFont);
    painter.setPen(isRecorded ? m_style->text : m_style->secondaryText);
    write(painter, layout.value, end, value);
}

} // namespace Loadwick

#include "moc_BarRow.cpp"
