#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "stage/FrameMeter.h"
#include "stage/Stage.h"

namespace Loadwick {

/// What the frames of one page cost: the first, each while the page arrives, each while it is
/// scrolled as fast as a wheel can, each while its scroll bar is dragged from the top to the end,
/// and each while the pointer crosses the page.
class PageCosts
{
public:
    /// The scene's page, entered from another one, `rounds` times.
    [[nodiscard]] static PageCosts measured(Stage &stage, const Scene &scene, int rounds);

    /// Adds the costs of another page.
    void add(const PageCosts &other);

    /// Whether the page appears without delay and nothing on it stutters.
    [[nodiscard]] bool areLow() const;

    /// One line each on the standard output.
    void print() const;

private:
    enum Part
    {
        first,
        arriving,
        scrolling,
        dragging,
        hovering
    };
    using Frames = std::vector<FrameMeter::Milliseconds>;

    void measure(Stage &stage, FrameMeter &meter, const Scene &scene);
    void append(Part part, const Frames &frames);
    [[nodiscard]] bool isBelow(FrameMeter::Milliseconds limit, Part part, double share) const;

    std::array<Frames, 5> m_frames; ///< of each part
};

} // namespace Loadwick
