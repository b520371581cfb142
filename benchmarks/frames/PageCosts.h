#pragma once

#include <vector>

#include "FrameMeter.h"
#include "pictures/Stage.h"

namespace Loadwick {

/// What the frames of one page cost: the first, each while the page arrives, each while it is
/// scrolled as fast as a wheel can, each while its scroll bar is dragged from the top to the end,
/// and each while the pointer crosses all that it shows.
struct PageCosts
{
    using Frames = std::vector<FrameMeter::Milliseconds>;

    Frames first;
    Frames arriving;
    Frames scrolling;
    Frames dragging;
    Frames hovering;

    /// Of the scene's page, come to from another one, that often.
    [[nodiscard]] static PageCosts measured(Stage &stage, const Scene &scene, int rounds);

    /// Adds those of another page.
    void add(const PageCosts &other);

    /// Whether nobody waits for the page and nothing on it stutters.
    [[nodiscard]] bool areLow() const;

    /// One line each on the standard output.
    void print() const;
};

} // namespace Loadwick
