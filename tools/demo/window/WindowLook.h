#pragma once

#include <span>
#include <string>
#include <vector>

#include <QQuickWindow>
#include <QSize>

#include "theme/Appearance.h"

namespace Loadwick {

/// How a window looks in one picture.
struct WindowLook
{
    QSize size;
    Appearance::Scheme scheme;

    /// Each size light and dark.
    [[nodiscard]] static std::vector<WindowLook> ofSizes(std::span<const QSize> sizes);

    /// As it ends the pictures' names: "light-960x640".
    [[nodiscard]] std::string name() const;

    /// Returns when the window has been laid out and drawn that way.
    void putOn(QQuickWindow &window) const;
};

} // namespace Loadwick
