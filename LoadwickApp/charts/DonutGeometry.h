#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace Loadwick {

/// A ring divided among rows by their tokens, in row order, clockwise from the top. Angles are in
/// radians. A row without tokens has no slice; without any tokens there are no slices at all.
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

    /// One thing to paint: a slice, or several that are too narrow to be told apart.
    struct Mark
    {
        std::size_t slice; ///< whose colour it has
        Sector sector;
        double opacity;
    };

    static constexpr double innerRadius = 0.62; ///< of the outer radius
    static constexpr double angularInset = 1.5; ///< points, at either edge of a slice
    static constexpr double dimmedOpacity = 0.35;
    static constexpr double leastWidth = 0.5; ///< points at the outer radius that can be told apart

    DonutGeometry() = default;
    /// Tokens per row; what is below zero counts as none.
    explicit DonutGeometry(std::span<const double> tokens);

    [[nodiscard]] const std::vector<Slice> &slices() const noexcept { return m_slices; }

    /// The first slice whose upper bound is at least that many tokens, counted from the top; the
    /// last one beyond the end. Nothing without slices.
    [[nodiscard]] std::optional<std::size_t> sliceAtTokens(double tokens) const noexcept;

    /// The slice at a place given from the centre (y downwards), in a ring of that outer radius.
    /// Nothing in the hole and outside.
    [[nodiscard]] std::optional<std::size_t> sliceAt(double x, double y,
                                                     double radius) const noexcept;

    /// What is painted of a slice in a ring of that outer radius in points: its straight edges run
    /// parallel to its bounds, an inset away, so that the gaps are evenly wide. Of a narrow slice
    /// they take half its width at most, and nothing of a slice that is the whole ring.
    [[nodiscard]] Sector sector(std::size_t slice, double radius) const;

    /// What is painted in a ring of that outer radius in points, clockwise. Neighbours too narrow
    /// to be told apart are painted as one, so that thousands cost no more than can be seen; the
    /// selected slice always stands for itself.
    [[nodiscard]] std::vector<Mark> marks(double radius, std::optional<std::size_t> selected) const;

    /// 1 for the selected slice and, with nothing selected, for all.
    [[nodiscard]] static double opacity(std::size_t slice,
                                        std::optional<std::size_t> selected) noexcept;

private:
    [[nodiscard]] Sector sectorOf(double start, double sweep, double radius) const;

    std::vector<Slice> m_slices;
};

} // namespace Loadwick
