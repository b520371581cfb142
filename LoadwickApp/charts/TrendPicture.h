#pragma once

#include <vector>

#include <QImage>
#include <QSizeF>

#include "charts/AxisScale.h"
#include "charts/DateTick.h"
#include "charts/TrendLayout.h"
#include "charts/TrendLine.h"
#include "charts/TrendStyle.h"

class QPainter;

namespace Loadwick {

/// A trend chart of one size, laid out once and then painted as often as needed.
class TrendPicture
{
public:
    TrendPicture(const TrendLine &line, const TrendStyle &style, const QSizeF &size);

    [[nodiscard]] const TrendLayout &layout() const noexcept { return m_layout; }

    /// `mark` is the point to single out, -1 for none. With `scans`, as `paintedScans` gave them,
    /// the line and its points are not painted anew, which takes ten times as long as the rest.
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
    [[nodiscard]] QPointF place(const LinePoint &point) const;

    QSizeF m_size;
    const TrendLine &m_line;
    TrendStyle m_style;
    AxisScale m_totals;
    std::vector<QString> m_totalLabels; ///< in the order of the ticks
    TrendLayout m_layout;
    std::vector<DateTick> m_dates;
};

} // namespace Loadwick
