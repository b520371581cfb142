#include "charts/TrendChart.h"

#include <QPaintEngine>
#include <QPainter>

namespace Loadwick {

TrendChart::TrendChart(QQuickItem *parent) : MarkedChart(parent)
{
    connect(this, &TrendChart::styleChanged, this, &TrendChart::redraw);
}

void TrendChart::setLine(TrendLine *line)
{
    if (line == m_line)
        return;
    if (m_line != nullptr)
        m_line->disconnect(this);
    m_line = line;
    if (m_line != nullptr)
        connect(m_line, &TrendLine::changed, this, &TrendChart::replaceScans);
    replaceScans();
    Q_EMIT lineChanged();
}

QString TrendChart::readout() const
{
    if (currentMark() < 0 || currentMark() >= markCount())
        return {};
    const auto mark = static_cast<std::size_t>(currentMark());
    return m_line->date(mark) + QStringLiteral(", ") + m_line->total(mark);
}

QPointF TrendChart::centreOf(int mark) const
{
    if (mark < 0 || mark >= markCount())
        return {};
    const LinePoint &point = m_line->geometry().points()[static_cast<std::size_t>(mark)];
    return {picture().layout().xOf(point.x), picture().layout().yOf(point.y)};
}

void TrendChart::paint(QPainter *painter)
{
    if (m_line != nullptr)
        picture().paint(*painter, currentMark() < markCount() ? currentMark() : -1,
                        scansFor(*painter));
}

// Each pointer move highlights another scan, so the scans are painted once and cached. A vector
// target, such as a PDF, needs them drawn.
const QImage &TrendChart::scansFor(const QPainter &painter)
{
    static const QImage none;
    if (painter.paintEngine()->type() != QPaintEngine::Raster)
        return none;
    const qreal pixelsPerPoint = painter.deviceTransform().m11();
    if (m_scans.isNull() || m_scans.devicePixelRatio() != pixelsPerPoint)
        m_scans = picture().paintedScans(pixelsPerPoint);
    return m_scans;
}

int TrendChart::markCount() const
{
    return m_line != nullptr ? static_cast<int>(m_line->geometry().points().size()) : 0;
}

int TrendChart::markAt(const QPointF &point) const
{
    if (m_line == nullptr)
        return -1;
    const TrendLayout &layout = picture().layout();
    if (!layout.frame().holds(point.x(), point.y()))
        return -1;
    const auto found = m_line->geometry().nearest(layout.pointAt(point.x(), point.y()));
    return found ? static_cast<int>(*found) : -1;
}

void TrendChart::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    MarkedChart::geometryChange(newGeometry, oldGeometry);
    redraw();
}

void TrendChart::redraw()
{
    m_picture.reset();
    m_scans = {};
    update();
    Q_EMIT drawn();
}

void TrendChart::replaceScans()
{
    forgetMarks();
    redraw();
}

TrendStyle TrendChart::style() const
{
    return {.font = m_font,
            .line = m_lineColor,
            .heavy = m_heavyColor,
            .heavyName = m_heavyNameColor,
            .excessive = m_excessiveColor,
            .excessiveName = m_excessiveNameColor,
            .grid = m_gridColor,
            .tick = m_tickColor,
            .text = m_textColor,
            .secondaryText = m_secondaryTextColor,
            .ground = m_groundColor};
}

const TrendPicture &TrendChart::picture() const
{
    if (!m_picture)
        m_picture.emplace(*m_line, style(), size());
    return *m_picture;
}

} // namespace Loadwick

#include "moc_TrendChart.cpp"
