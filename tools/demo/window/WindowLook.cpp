#include "demo/window/WindowLook.h"

#include "demo/window/EventWait.h"
#include "demo/window/WindowAppearance.h"

namespace Loadwick {

std::vector<WindowLook> WindowLook::ofSizes(std::span<const QSize> sizes)
{
    std::vector<WindowLook> looks;
    for (const QSize &size : sizes)
        for (const Appearance::Scheme scheme : {Appearance::Light, Appearance::Dark})
            looks.push_back({.size = size, .scheme = scheme});
    return looks;
}

std::string WindowLook::name() const
{
    return std::string(scheme == Appearance::Dark ? "dark" : "light") + "-" +
           std::to_string(size.width()) + "x" + std::to_string(size.height());
}

void WindowLook::putOn(QQuickWindow &window) const
{
    appearanceOf(window).setScheme(scheme);
    window.resize(size);
    settle();
}

} // namespace Loadwick
