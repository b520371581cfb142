#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include <QColor>
#include <QList>

#include "charts/MarkedChart.h"

namespace Loadwick {

/// A ring divided among rows by their tokens, in row order, clockwise from the top. Angles are in
/// radians. A row without tokens has no slice.
class DonutGeometry
{
public:
    struct Slice
    {
        std::size_t row;   ///< whose slice it is
        double start;      ///< angle
        double sweep;      ///< angle, before the inset
        double upperBound; ///< tokens of this and every earlier slice
    };

    /// The outline of one slice: an outer arc clockwise and an inner arc back.
    struct Sector
    {
        double outerStart;
        double outerSweep;
        double innerStart;
        double innerSweep;
    };

    /// One thing to paint: a slice, or several that are too narrow to tell apart.
    struct Mark
    {
        std::size_t slice; ///< whose colour it has
        Sector sector;
        double opacity; ///< 1 unless another slice is selected
    };

    static constexpr double innerRadius = 0.62; ///< of the outer radius
    static constexpr double angularInset = 1.5; ///< points, at either edge of a slice
    static constexpr double dimmedOpacity = 0.35;
    static constexpr double leastWidth =
        0.5; ///< points at the outer radius that the eye can tell apart

    DonutGeometry() = default;
    /// Tokens per row; a negative count counts as 0.
    explicit DonutGeometry(std::span<const double> tokens);

    [[nodiscard]] const std::vector<Slice> &slices() const noexcept { return m_slices; }

    /// The first slice whose upper bound is at least that many tokens, counted from the top; the
    /// last slice if there is none.
    [[nodiscard]] std::optional<std::size_t> sliceAtTokens(double tokens) const noexcept;

    /// The slice at a point relative to the centre (y downwards), in a ring of that outer radius.
    /// Nothing in the hole and outside.
    [[nodiscard]] std::optional<std::size_t> sliceAt(double x, double y,
                                                     double radius) const noexcept;

    /// The painted part of a slice in a ring of that outer radius in points: its straight edges run
    /// parallel to its bounds, an inset away, so that all gaps are equally wide. The insets take at
    /// most half the width of a narrow slice, and nothing from a slice that is the whole ring.
    [[nodiscard]] Sector sector(std::size_t slice, double radius) const;

    /// The painted parts of a ring of that outer radius in points, clockwise. Neighbours too narrow
    /// to tell apart share one mark, so that thousands cost no more than the eye can see; the
    /// selected slice always has a mark of its own.
    [[nodiscard]] std::vector<Mark> marks(double radius, std::optional<std::size_t> selected) const;

private:
    [[nodiscard]] Sector sectorOf(double start, double sweep, double radius) const;

    std::vector<Slice> m_slices;
};

/// A ring as large as the item, with a slice for each row that has tokens. Its marks are the
/// slices; the hole is inert.
class DonutChart : public Loadwick::MarkedChart
{
    Q_OBJECT
    QML_ELEMENT
    /// Tokens per row.
    Q_PROPERTY(QList<qreal> tokens MEMBER m_tokens NOTIFY tokensChanged)
    /// Assigned to the rows in turn.
    Q_PROPERTY(QList<QColor> colors MEMBER m_colors NOTIFY colorsChanged)
    /// The row of the current mark, -1 if there is none.
    Q_PROPERTY(int currentRow READ currentRow NOTIFY currentMarkChanged)

public:
    explicit DonutChart(QQuickItem *parent = nullptr);

    [[nodiscard]] int currentRow() const;

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void tokensChanged();
    void colorsChanged();

protected:
    [[nodiscard]] int markCount() const override;
    [[nodiscard]] int markAt(const QPointF &point) const override;

private:
    void divide();
    [[nodiscard]] qreal radius() const;
    [[nodiscard]] QColor colorOf(std::size_t slice) const;

    QList<qreal> m_tokens;
    QList<QColor> m_colors;
    DonutGeometry m_geometry;
};

} // namespace Loadwick
