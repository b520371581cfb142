#pragma once

#include "charts/TrendLine.h"

namespace Loadwick {

/// A rectangle of a picture, in pixels; y grows downwards.
struct PlotRect
{
    double x;
    double y;
    double width;
    double height;

    [[nodiscard]] double right() const noexcept { return x + width; }
    [[nodiscard]] double bottom() const noexcept { return y + height; }
    [[nodiscard]] bool holds(double pointX, double pointY) const noexcept
    {
        return pointX >= x && pointX <= right() && pointY >= y && pointY <= bottom();
    }
};

/// Lays out a trend chart: the axis of totals on the left, the axis of dates at the bottom, and the
/// names of the thresholds on the right, outside the plot, where they cover neither a point nor an
/// axis.
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

    /// The area for the centres of points.
    [[nodiscard]] const PlotRect &plot() const noexcept { return m_plot; }

    /// The plot including the points at its sides: the extent of grid lines and thresholds.
    [[nodiscard]] const PlotRect &frame() const noexcept { return m_frame; }

    /// From a share of the plot to pixels, and back.
    [[nodiscard]] double xOf(double share) const noexcept;
    [[nodiscard]] double yOf(double share) const noexcept;
    [[nodiscard]] LinePoint pointAt(double x, double y) const noexcept;

    struct NameHeights
    {
        double lower;
        double upper;
    };
    /// The vertical centres of the names of two thresholds: each at its line, as far as both fit
    /// one above the other beside the plot.
    [[nodiscard]] NameHeights nameHeights(double lowerShare, double upperShare) const noexcept;

    /// The box of the read-out of a point at `share`: centred on it as far as the sides of the
    /// frame allow, at the frame's upper edge, above all points.
    [[nodiscard]] PlotRect readout(double share, double wordsWidth) const noexcept;

    /// The upper edge of the labels of the axis of dates.
    [[nodiscard]] double dateLabelsTop() const noexcept;

private:
    Needs m_needs;
    PlotRect m_frame;
    PlotRect m_plot;
};

} // namespace Loadwick
