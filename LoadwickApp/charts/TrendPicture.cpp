#include "charts/TrendPicture.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

#include "base/QtText.h"
#include "charts/AxisScale.h"
#include "report/OpinionBand.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

constexpr int mostIntervals = 4; // of the axis of totals: one line for each 50 pixels
constexpr double dateGap = 24;   // at least, between two labels
constexpr double tickLength = 4;
constexpr double lineWidth = 2;
constexpr double pointRadius = 4;
constexpr double densePointRadius = 2.5;
constexpr std::size_t denseFrom = 80; // from this many points, large ones merge into a band
constexpr double haloRadius = 8.5;    // around the current point, and around a mark placed on it
constexpr double haloWidth = 1.5;
constexpr double nameGap = 8;
constexpr double readoutRadius = 6;
constexpr double readoutGap = 8; // between its date and its total

QString nameOf(OpinionBand band)
{
    return qtText(band.title());
}

double widestName(const QFontMetricsF &metrics)
{
    return std::max(metrics.horizontalAdvance(nameOf(OpinionBand::heavy)),
                    metrics.horizontalAdvance(nameOf(OpinionBand::excessive)));
}

std::vector<QString> labelsOf(const AxisScale &totals, const TextLocale &locale)
{
    std::vector<QString> labels;
    for (const std::int64_t tick : totals.ticks())
        labels.push_back(qtText(NumberText::grouped(tick, locale)));
    return labels;
}

TrendLayout layoutOf(const QSizeF &size, const QFontMetricsF &metrics,
                     const std::vector<QString> &labels)
{
    double widestTotal = 0;
    for (const QString &label : labels)
        widestTotal = std::max(widestTotal, metrics.horizontalAdvance(label));
    return TrendLayout({.width = size.width(),
                        .height = size.height(),
                        .lineHeight = metrics.height(),
                        .widestTotal = widestTotal,
                        .widestName = widestName(metrics),
                        .pointRadius = pointRadius});
}

QFont strong(QFont font)
{
    font.setWeight(QFont::DemiBold);
    return font;
}

/// The centre of a pixel, so that a line one pixel wide is sharp.
double crisp(double position)
{
    return std::floor(position) + 0.5;
}

} // namespace

TrendPicture::TrendPicture(const TrendLine &line, const TrendStyle &style, const QSizeF &size)
    : m_size(size),
      m_line(line),
      m_style(style),
      m_totals(line.geometry().upperBound(), mostIntervals),
      m_totalLabels(labelsOf(m_totals, line.locale())),
      m_layout(layoutOf(size, QFontMetricsF(style.font), m_totalLabels))
{
    const std::vector<LineSample> &samples = line.geometry().samples();
    if (samples.empty())
        return;
    const QFontMetricsF metrics(style.font);
    m_dates = DateAxisScale(samples.front().date, samples.back().date)
                  .fittingTicks(m_layout.plot().width, dateGap, line.locale(),
                                [&metrics](std::string_view label) {
                                    return metrics.horizontalAdvance(qtText(label));
                                });
}

void TrendPicture::paint(QPainter &painter, int mark, const QImage &scans) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(m_style.font);
    paintTotals(painter);
    paintDates(painter);
    paintThresholds(painter);
    if (mark >= 0)
        paintMark(painter, static_cast<std::size_t>(mark));
    if (scans.isNull())
        paintScans(painter);
    else
        painter.drawImage(QPointF(), scans);
    if (mark < 0)
        return;
    paintMarkedPoint(painter, static_cast<std::size_t>(mark));
    paintReadout(painter, static_cast<std::size_t>(mark));
}

QImage TrendPicture::paintedScans(qreal pixelsPerPoint) const
{
    QImage image((m_size * pixelsPerPoint).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelsPerPoint);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintScans(painter);
    return image;
}

void TrendPicture::paintTotals(QPainter &painter) const
{
    const PlotRect &frame = m_layout.frame();
    const double lineHeight = QFontMetricsF(m_style.font).height();
    const std::vector<std::int64_t> ticks = m_totals.ticks();
    for (std::size_t index = 0; index < ticks.size(); ++index) {
        const double y = crisp(m_layout.yOf(m_totals.position(ticks[index])));
        painter.setPen(QPen(m_style.grid, 1));
        painter.drawLine(QPointF(frame.x, y), QPointF(frame.right(), y));
        painter.setPen(m_style.secondaryText);
        painter.drawText(QRectF(0, y - lineHeight / 2, frame.x - nameGap, lineHeight),
                         Qt::AlignRight | Qt::AlignVCenter, m_totalLabels[index]);
    }
}

void TrendPicture::paintDates(QPainter &painter) const
{
    const QFontMetricsF metrics(m_style.font);
    const PlotRect &plot = m_layout.plot();
    const std::vector<LineSample> &samples = m_line.geometry().samples();
    for (const DateTick &tick : m_dates) {
        const DateAxisScale axis(samples.front().date, samples.back().date);
        const double at = crisp(m_layout.xOf(axis.position(tick.moment)));
        painter.setPen(QPen(m_style.tick, 1));
        painter.drawLine(QPointF(at, plot.bottom()), QPointF(at, plot.bottom() + tickLength));
        painter.setPen(m_style.secondaryText);
        const QString label = qtText(tick.label);
        const double width = metrics.horizontalAdvance(label);
        const double x = plot.x + axis.labelStart(tick.moment, width, plot.width);
        painter.drawText(QPointF(x, m_layout.dateLabelsTop() + metrics.ascent()), label);
    }
}

void TrendPicture::paintThresholds(QPainter &painter) const
{
    const double lower = m_totals.position(OpinionBand::heavyThreshold);
    const double upper = m_totals.position(OpinionBand::excessiveThreshold);
    const TrendLayout::NameHeights names = m_layout.nameHeights(lower, upper);
    const double lineHeight = QFontMetricsF(m_style.font).height();
    const PlotRect &frame = m_layout.frame();
    const auto paintOne = [&](double share, const QColor &color) {
        QPen pen(color, 1);
        pen.setDashPattern({5, 4});
        pen.setCapStyle(Qt::FlatCap);
        painter.setPen(pen);
        const double y = crisp(m_layout.yOf(share));
        painter.drawLine(QPointF(frame.x, y), QPointF(frame.right(), y));
    };
    const auto nameOne = [&](double y, const QColor &color, OpinionBand band) {
        painter.setPen(color);
        painter.drawText(QPointF(frame.right() + nameGap,
                                 y - lineHeight / 2 + QFontMetricsF(m_style.font).ascent()),
                         nameOf(band));
    };
    paintOne(lower, m_style.heavy);
    paintOne(upper, m_style.excessive);
    nameOne(names.lower, m_style.heavyName, OpinionBand::heavy);
    nameOne(names.upper, m_style.excessiveName, OpinionBand::excessive);
}

void TrendPicture::paintScans(QPainter &painter) const
{
    const std::vector<LinePoint> &points = m_line.geometry().points();
    QPolygonF line;
    for (const LinePoint &point : points)
        line.append(pixel(point));
    QPen pen(m_style.line, lineWidth);
    pen.setJoinStyle(Qt::RoundJoin);
    painter.setPen(pen);
    painter.drawPolyline(line);
    const double radius = points.size() < denseFrom ? pointRadius : densePointRadius;
    painter.setPen(QPen(m_style.ground, 1.5));
    painter.setBrush(m_style.line);
    for (const QPointF &point : line)
        painter.drawEllipse(point, radius, radius);
}

void TrendPicture::paintMarkedPoint(QPainter &painter, std::size_t mark) const
{
    const QPointF centre = pixel(m_line.geometry().points()[mark]);
    painter.setPen(QPen(m_style.secondaryText, haloWidth));
    painter.setBrush(m_style.ground);
    painter.drawEllipse(centre, haloRadius, haloRadius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_style.line);
    painter.drawEllipse(centre, pointRadius, pointRadius);
}

void TrendPicture::paintMark(QPainter &painter, std::size_t mark) const
{
    const double x = crisp(pixel(m_line.geometry().points()[mark]).x());
    painter.setPen(QPen(m_style.secondaryText, 1));
    painter.drawLine(QPointF(x, m_layout.frame().y), QPointF(x, m_layout.frame().bottom()));
}

void TrendPicture::paintReadout(QPainter &painter, std::size_t mark) const
{
    const QString date = m_line.date(mark);
    const QString total = m_line.total(mark);
    const QFont strongFont = strong(m_style.font);
    const double dateWidth = QFontMetricsF(m_style.font).horizontalAdvance(date);
    const double totalWidth = QFontMetricsF(strongFont).horizontalAdvance(total);
    const PlotRect box =
        m_layout.readout(m_line.geometry().points()[mark].x, dateWidth + readoutGap + totalWidth);
    painter.setPen(QPen(m_style.grid, 1));
    painter.setBrush(m_style.ground);
    painter.drawRoundedRect(QRectF(box.x, box.y, box.width, box.height), readoutRadius,
                            readoutRadius);
    const double inner = (box.width - dateWidth - readoutGap - totalWidth) / 2;
    const QRectF words(box.x + inner, box.y, box.width - 2 * inner, box.height);
    painter.setPen(m_style.secondaryText);
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter, date);
    painter.setPen(m_style.text);
    painter.setFont(strongFont);
    painter.drawText(words, Qt::AlignRight | Qt::AlignVCenter, total);
}

QPointF TrendPicture::pixel(const LinePoint &point) const
{
    return {m_layout.xOf(point.x), m_layout.yOf(point.y)};
}

} // namespace Loadwick
