#pragma once

#include "charts/LinePoint.h"
#include "charts/PlotRect.h"

namespace Loadwick {

/// Divides the chart of a trend: at the left the axis of totals, below the axis of dates, at the
/// right the names of the thresholds. The names stand outside the plot, so that they can cover
/// neither a point nor an axis.
class TrendLayout
{
public:
    /// In pixels.
    struct Needs
    {
        double width; ///< of the whole chart
        double height;
        double lineHeight;  ///< of a label
        double widestTotal; ///< of the labels of the axis of totals
        double widestName;  ///< of the names of the thresholds
        double pointRadius = 0;
    };

    explicit TrendLayout(const Needs &needs) noexcept;

    /// Where the middles of points can be.
    [[nodiscard]] const PlotRect &plot() const noexcept { return m_plot; }

    /// The plot with room for the points at its sides: what grid lines and thresholds cross.
    [[nodiscard]] const PlotRect &frame() const noexcept { return m_frame; }

    /// Pixels of a place in the plot, and back.
    [[nodiscard]] double xOf(double share) const noexcept;
    [[nodiscard]] double yOf(double share) const noexcept;
    [[nodiscard]] LinePoint pointAt(double x, double y) const noexcept;

    struct NamePlaces
    {
        double lower;
        double upper;
    };
    /// The heights of the middles of the names of two thresholds: each at its line as far as both
    /// can stand one over the other beside the plot.
    [[nodiscard]] NamePlaces namePlaces(double lowerShare, double upperShare) const noexcept;

    /// The words about a point at `share`: over it as far as the sides of the frame allow, at the
    /// frame's upper edge, which is above all points.
    [[nodiscard]] PlotRect readout(double share, double wordsWidth) const noexcept;

    /// Where the labels of the axis of dates have their upper edge.
    [[nodiscard]] double dateLabelsTop() const noexcept;

private:
    Needs m_needs;
    PlotRect m_frame;
    PlotRect m_plot;
};

} // namespace Loadwick
