#pragma once

#include <QColor>
#include <QList>

#include "charts/DonutGeometry.h"
#include "charts/MarkedChart.h"

namespace Loadwick {

/// A ring of slices, one for each row that has tokens, as large as the item. Its marks are the
/// slices; only the ring itself is pointed at.
class DonutChart : public Loadwick::MarkedChart
{
    Q_OBJECT
    QML_ELEMENT
    /// Tokens per row.
    Q_PROPERTY(QList<qreal> tokens READ tokens WRITE setTokens NOTIFY tokensChanged)
    /// Taken by the rows in turn.
    Q_PROPERTY(QList<QColor> colors READ colors WRITE setColors NOTIFY colorsChanged)
    /// The row of the current mark, -1 while there is none.
    Q_PROPERTY(int currentRow READ currentRow NOTIFY currentMarkChanged)

public:
    using MarkedChart::MarkedChart;

    [[nodiscard]] const QList<qreal> &tokens() const noexcept { return m_tokens; }
    void setTokens(const QList<qreal> &tokens);
    [[nodiscard]] const QList<QColor> &colors() const noexcept { return m_colors; }
    void setColors(const QList<QColor> &colors);
    [[nodiscard]] int currentRow() const;

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void tokensChanged();
    void colorsChanged();

protected:
    [[nodiscard]] int markCount() const override;
    [[nodiscard]] int markAt(const QPointF &point) const override;

private:
    [[nodiscard]] qreal radius() const;
    [[nodiscard]] QColor colorOf(std::size_t slice) const;

    QList<qreal> m_tokens;
    QList<QColor> m_colors;
    DonutGeometry m_geometry;
};

} // namespace Loadwick
