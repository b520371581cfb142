#include "pictures/PageCamera.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include <QSize>

#include "demo/window/EventWait.h"
#include "demo/window/WindowAppearance.h"
#include "demo/window/WindowLook.h"
#include "pictures/PageViewport.h"

namespace Loadwick {

namespace {

constexpr std::array<QSize, 3> sizes{QSize(960, 640), QSize(1180, 780), QSize(2560, 1440)};
constexpr int greatestHeight = 16'000; // what a picture viewer still opens

/// Long pages make what they show over many frames: two pictures in a row are alike once they have.
QImage pictureAtRest(QQuickWindow &window)
{
    QImage picture = window.grabWindow();
    waitUntil("a page at rest", [&] {
        settle();
        QImage before = window.grabWindow();
        std::swap(before, picture);
        return before == picture;
    });
    return picture;
}

} // namespace

PageCamera::PageCamera(QQuickWindow &window, std::filesystem::path folder)
    : m_window(window), m_folder(std::move(folder))
{
    appearanceOf(m_window).setMotion(Appearance::Reduced);
}

void PageCamera::take(const std::string &name) const
{
    for (const WindowLook &look : WindowLook::ofSizes(sizes)) {
        look.putOn(m_window);
        const std::string picture = name + "-" + look.name();
        m_folder.save(pictureAtRest(m_window), picture);
        const QQuickItem *viewport = pageViewport(m_window);
        if (viewport != nullptr && hiddenHeight(*viewport) > 0)
            m_folder.save(wholePage(*viewport), picture + "-whole");
    }
}

// The window is made so high that nothing of the page is left to scroll.
QImage PageCamera::wholePage(const QQuickItem &viewport) const
{
    const int height = m_window.height() + static_cast<int>(std::ceil(hiddenHeight(viewport)));
    m_window.resize(m_window.width(), std::min(height, greatestHeight));
    const QImage whole = pictureAtRest(m_window);
    return whole.copy(viewport.mapRectToScene(viewport.boundingRect()).toRect());
}

} // namespace Loadwick
