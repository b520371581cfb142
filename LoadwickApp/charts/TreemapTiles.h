#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "report/TreemapRect.h"

namespace Loadwick {

/// The tiles of a treemap in a frame of any size, one for each weight. All lengths are points.
class TreemapTiles
{
public:
    /// What a tile must measure to show a name.
    static constexpr double leastNameWidth = 84.0;
    static constexpr double leastNameHeight = 28.0;

    /// A tile as it is painted: its edges on whole pixels.
    struct Box
    {
        double left;
        double top;
        double width;
        double height;

        friend bool operator==(const Box &, const Box &) = default;
    };

    TreemapTiles() = default;
    explicit TreemapTiles(std::span<const double> weights);

    /// The frame from (0, 0) on; without one all tiles are empty.
    void setFrame(double width, double height) noexcept;

    [[nodiscard]] std::size_t count() const noexcept { return m_shares.size(); }
    /// In points of the frame.
    [[nodiscard]] TreemapRect tile(std::size_t index) const;
    [[nodiscard]] bool showsName(std::size_t index) const;

    /// The tile that holds a point, -1 where there is none. Tiles leave no gaps here.
    [[nodiscard]] int tileAt(double x, double y) const;

    /// The tile on a grid of `pixelsPerPoint`, one point short at the right and the bottom where
    /// another tile follows; one too thin to spare it keeps it.
    [[nodiscard]] Box box(std::size_t index, double pixelsPerPoint) const;

private:
    std::vector<TreemapRect> m_shares; ///< of the unit square
    double m_width = 0.0;
    double m_height = 0.0;
};

} // namespace Loadwick
