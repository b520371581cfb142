#include "demo/window/PictureSeries.h"

#include <array>
#include <utility>

#include "demo/window/WindowAppearance.h"
#include "demo/window/WindowLook.h"

namespace Loadwick {

namespace {

constexpr std::array<QSize, 2> sizes{QSize(1180, 780), QSize(960, 640)};

} // namespace

PictureSeries::PictureSeries(QQuickWindow &window, std::filesystem::path folder)
    : m_window(window), m_folder(std::move(folder))
{
    appearanceOf(m_window).setMotion(Appearance::Reduced);
}

void PictureSeries::take(const std::string &state) const
{
    for (const WindowLook &look : WindowLook::ofSizes(sizes)) {
        look.putOn(m_window);
        m_folder.save(m_window.grabWindow(), state + "-" + look.name());
    }
}

} // namespace Loadwick
