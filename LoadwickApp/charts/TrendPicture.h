#pragma once

#include <vector>

#include <QColor>
#include <QFont>
#include <QImage>
#include <QSizeF>

#include "charts/AxisScale.h"
#include "charts/TrendLayout.h"
#include "charts/TrendLine.h"

class QPainter;

namespace Loadwick {

/// The colours and the font of a trend chart.
struct TrendStyle
{
    QFont font;
    QColor line;
    QColor heavy; ///< of the threshold between lean and heavy
    QColor heavyName;
    QColor excessive;
    QColor excessiveName;
    QColor grid;
    QColor tick; ///< of the axis of dates
    QColor text;
    QColor secondaryText;
    QColor ground;
};

/// A trend chart of one size, laid out once and then painted as often as needed.
class TrendPicture
{
public:
    TrendPicture(const TrendLine &line, const TrendStyle &style, const QSizeF &size);

    [[nodiscard]] const TrendLayout &layout() const noexcept { return m_layout; }

    /// `mark` is the point to highlight, -1 for none. `scans`, the result of `paintedScans`, saves
    /// painting the line and its points, which takes ten times as long as the rest.
    void paint(QPainter &painter, int mark, const QImage &scans = {}) const;

    /// The line and its points alone.
    [[nodiscard]] QImage paintedScans(qreal pixelsPerPoint) const;

private:
    void paintTotals(QPainter &painter) const;
    void paintDates(QPainter &painter) const;
    void paintThresholds(QPainter &painter) const;
    void paintScans(QPainter &painter) const;
    void paintMark(QPainter &painter, std::size_t mark) const;
    void paintMarkedPoint(QPainter &painter, std::size_t mark) const;
    void paintReadout(QPainter &painter, std::size_t mark) const;
    [[nodiscard]] QPointF pixel(const LinePoint &point) const;

    QSizeF m_size;
    const TrendLine &m_line;
    TrendStyle m_style;
    AxisScale m_totals;
    std::vector<QString> m_totalLabels; ///< in the order of the ticks
    TrendLayout m_layout;
    std::vector<DateTick> m_dates;
};

} // namespace Loadwick
