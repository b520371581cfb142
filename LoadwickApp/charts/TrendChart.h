#pragma once

#include <optional>

#include <QColor>
#include <QFont>

#include "charts/MarkedChart.h"
#include "charts/TrendLine.h"
#include "charts/TrendPicture.h"

namespace Loadwick {

/// The line of a repository's totals over time, against the thresholds of the bands. Its marks are
/// the scans by date; the pointer chooses the nearest one.
class TrendChart : public Loadwick::MarkedChart
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Loadwick::TrendLine *line READ line WRITE setLine NOTIFY lineChanged REQUIRED)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY styleChanged)
    Q_PROPERTY(QColor lineColor MEMBER m_lineColor NOTIFY styleChanged)
    Q_PROPERTY(QColor heavyColor MEMBER m_heavyColor NOTIFY styleChanged)
    Q_PROPERTY(QColor heavyNameColor MEMBER m_heavyNameColor NOTIFY styleChanged)
    Q_PROPERTY(QColor excessiveColor MEMBER m_excessiveColor NOTIFY styleChanged)
    Q_PROPERTY(QColor excessiveNameColor MEMBER m_excessiveNameColor NOTIFY styleChanged)
    Q_PROPERTY(QColor gridColor MEMBER m_gridColor NOTIFY styleChanged)
    Q_PROPERTY(QColor tickColor MEMBER m_tickColor NOTIFY styleChanged)
    Q_PROPERTY(QColor textColor MEMBER m_textColor NOTIFY styleChanged)
    Q_PROPERTY(QColor secondaryTextColor MEMBER m_secondaryTextColor NOTIFY styleChanged)
    Q_PROPERTY(QColor groundColor MEMBER m_groundColor NOTIFY styleChanged)
    /// Describes the current mark; empty without one.
    Q_PROPERTY(QString readout READ readout NOTIFY currentMarkChanged)

public:
    explicit TrendChart(QQuickItem *parent = nullptr);

    [[nodiscard]] TrendLine *line() const noexcept { return m_line; }
    /// Not owned; it outlives the chart.
    void setLine(TrendLine *line);

    [[nodiscard]] QString readout() const;

    /// The centre of a scan's point, which moves with `drawn`; nothing sensible without the scan.
    Q_INVOKABLE [[nodiscard]] QPointF centreOf(int mark) const;

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void lineChanged();
    void styleChanged();
    /// The points have other places.
    void drawn();

protected:
    [[nodiscard]] int markCount() const override;
    [[nodiscard]] int markAt(const QPointF &point) const override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void redraw();
    void replaceScans();
    [[nodiscard]] TrendStyle style() const;
    [[nodiscard]] const TrendPicture &picture() const;
    [[nodiscard]] const QImage &scansFor(const QPainter &painter);

    TrendLine *m_line = nullptr;
    mutable std::optional<TrendPicture> m_picture; ///< made on first use
    QImage m_scans; ///< the picture's, in pixels; null until they are painted
    QFont m_font;
    QColor m_lineColor;
    QColor m_heavyColor;
    QColor m_heavyNameColor;
    QColor m_excessiveColor;
    QColor m_excessiveNameColor;
    QColor m_gridColor;
    QColor m_tickColor;
    QColor m_textColor;
    QColor m_secondaryTextColor;
    QColor m_groundColor;
};

} // namespace Loadwick
