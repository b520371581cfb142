#include "trends/ChangeRow.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

#include "charts/RowPainting.h"

namespace Loadwick {
namespace {

using namespace RowPainting;

constexpr qreal columnGap = 16;
constexpr qreal noteGap = 8;

QRectF middleOf(const QRectF &box)
{
    return {box.left(), box.top() + std::round((box.height() - barHeight) / 2), box.width(),
            barHeight};
}

} // namespace

ChangeRowLayout ChangeRowLayout::wide(const QSizeF &row, qreal figureWidth, qreal trackWidth)
{
    qreal end = row.width();
    const auto column = [&end, &row](qreal width) {
        const QRectF box(end - width, 0, width, row.height());
        end = box.left() - columnGap;
        return box;
    };
    const QRectF track = middleOf(column(trackWidth));
    const QRectF difference = column(figureWidth);
    const QRectF after = column(figureWidth);
    const QRectF before = column(figureWidth);
    return {.name = {0, 0, std::max(0.0, end), row.height()},
            .before = before,
            .after = after,
            .difference = difference,
            .track = track};
}

ChangeRowLayout ChangeRowLayout::narrow(const QSizeF &row, qreal figureWidth, qreal differenceWidth)
{
    const qreal nameEnd = row.width() - differenceWidth;
    const qreal half = std::floor(row.height() / 2);
    const qreal last = row.width() - figureWidth;
    const qreal middle = last - columnGap - figureWidth;
    return {.name = {0, 0, std::max(0.0, nameEnd - columnGap), half},
            .before = {middle, half, figureWidth, half},
            .after = {last, half, figureWidth, half},
            .difference = {nameEnd, 0, differenceWidth, half},
            .track = middleOf({0, half, std::max(0.0, middle - columnGap), half})};
}

ChangeRowLayout ChangeRowLayout::mirrored(qreal rowWidth) const
{
    return {.name = mirroredIn(rowWidth, name),
            .before = mirroredIn(rowWidth, before),
            .after = mirroredIn(rowWidth, after),
            .difference = mirroredIn(rowWidth, difference),
            .track = mirroredIn(rowWidth, track)};
}

QRectF ChangeRowLayout::bar(double length, bool isMirrored) const
{
    if (length == 0)
        return {};
    const qreal half = track.width() / 2;
    const qreal width = std::min(half, std::max(leastBar, std::abs(length) * half));
    const bool pointsRight = (length > 0) != isMirrored;
    const qreal zero = track.center().x();
    return {pointsRight ? zero : zero - width, track.top(), width, track.height()};
}

ChangeRow::ChangeRow(QQuickItem *parent) : PainterItem(parent)
{
    connect(this, &ChangeRow::changed, this, [this] { update(); });
}

void ChangeRow::setStyle(ChangeStyle *style)
{
    if (follow(*this, m_style, style))
        Q_EMIT styleChanged();
}

QString ChangeRow::tip() const
{
    if (!m_style)
        return {};
    const qreal noteWidth =
        note.isEmpty() ? 0 : noteGap + QFontMetricsF(m_style->noteFont).horizontalAdvance(note);
    const qreal width = QFontMetricsF(font()).horizontalAdvance(name) + noteWidth;
    if (width <= std::ceil(layout().name.width()))
        return {};
    return note.isEmpty() ? name : name + u'\n' + note;
}

ChangeRowLayout ChangeRow::layout() const
{
    if (!m_style)
        return {};
    const qreal figureWidth = m_style->figureWidth;
    const qreal differenceWidth = std::ceil(QFontMetricsF(font()).horizontalAdvance(difference));
    const ChangeRowLayout layout =
        m_style->isNarrow ? ChangeRowLayout::narrow(size(), figureWidth, differenceWidth)
                          : ChangeRowLayout::wide(size(), figureWidth, m_style->trackWidth);
    return m_style->isMirrored ? layout.mirrored(width()) : layout;
}

const QFont &ChangeRow::font() const
{
    return isHeading ? m_style->headingFont : isTotal ? m_style->totalFont : m_style->font;
}

QColor ChangeRow::differenceColor() const
{
    switch (kind) {
    case TrendKind::Grew:
        return m_style->grewText;
    case TrendKind::Shrank:
        return m_style->shrankText;
    default:
        return m_style->secondaryText;
    }
}

void ChangeRow::paint(QPainter *painter)
{
    if (!m_style)
        return;
    const ChangeRowLayout parts = layout();
    paintNames(*painter, parts.name);
    paintFigures(*painter, parts);
    if (!isHeading && !isTotal)
        paintBar(*painter, parts);
    if (isTotal)
        painter->fillRect(QRectF(0, height() - 1, width(), 1), m_style->line);
}

// The note is elided before the name.
void ChangeRow::paintNames(QPainter &painter, const QRectF &box) const
{
    const Qt::Alignment start = m_style->isMirrored ? Qt::AlignRight : Qt::AlignLeft;
    const QFontMetricsF metrics(font());
    painter.setFont(font());
    painter.setPen(isHeading ? m_style->secondaryText : m_style->text);
    const QString shownName = metrics.elidedText(name, Qt::ElideMiddle, box.width());
    write(painter, box, start, shownName);
    const qreal taken = metrics.horizontalAdvance(shownName) + noteGap;
    const QFontMetricsF noteMetrics(m_style->noteFont);
    const QString shownNote =
        noteMetrics.elidedText(note, Qt::ElideRight, std::max(0.0, box.width() - taken));
    painter.setFont(m_style->noteFont);
    painter.setPen(m_style->secondaryText);
    write(painter,
          m_style->isMirrored ? box.adjusted(0, 0, -taken, 0) : box.adjusted(taken, 0, 0, 0), start,
          shownNote);
}

// Figures end on one vertical line, from right to left too.
void ChangeRow::paintFigures(QPainter &painter, const ChangeRowLayout &layout) const
{
    painter.setFont(font());
    painter.setPen(isTotal ? m_style->text : m_style->secondaryText);
    write(painter, layout.before, Qt::AlignRight, before);
    painter.setPen(isHeading ? m_style->secondaryText : m_style->text);
    write(painter, layout.after, Qt::AlignRight, after);
    painter.setPen(differenceColor());
    write(painter, layout.difference, Qt::AlignRight, difference);
}

void ChangeRow::paintBar(QPainter &painter, const ChangeRowLayout &layout) const
{
    const qreal top = layout.after.top(); // of the line that the bar is on
    painter.fillRect(QRectF(std::floor(layout.track.center().x()), top, 1, height() - top),
                     m_style->line);
    fillBar(painter, layout.bar(length, m_style->isMirrored),
            kind == TrendKind::Shrank ? m_style->shrankBar : m_style->grewBar);
}

} // namespace Loadwick

#include "moc_ChangeRow.cpp"
