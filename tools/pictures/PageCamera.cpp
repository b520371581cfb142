#include "pictures/PageCamera.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <utility>

#include <QQuickItem>

#include "demo/window/EventWait.h"
#include "demo/window/WindowAppearance.h"
#include "pictures/PageViewport.h"
#include "probe/Fatal.h"

namespace Loadwick {

namespace {

constexpr std::array<QSize, 3> sizes{QSize(960, 640), QSize(1180, 780), QSize(2560, 1440)};
constexpr std::array<std::pair<Appearance::Scheme, const char *>, 2> schemes{
    {{Appearance::Light, "light"}, {Appearance::Dark, "dark"}}};
constexpr int greatestHeight = 16'000; // what a picture viewer still opens

std::string sizeText(const QSize &size)
{
    return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

} // namespace

PageCamera::PageCamera(QQuickWindow &window, std::filesystem::path folder)
    : m_window(window), m_folder(std::move(folder))
{
    std::error_code failure;
    std::filesystem::create_directories(m_folder, failure);
    if (failure)
        fatalError("no folder for the pictures: " + m_folder.string());
    appearanceOf(m_window).setMotion(Appearance::Reduced);
}

void PageCamera::take(const std::string &name) const
{
    for (const QSize &size : sizes)
        for (const auto &[scheme, schemeName] : schemes) {
            appearanceOf(m_window).setScheme(scheme);
            takeAt(size, name + "-" + schemeName + "-" + sizeText(size));
        }
}

void PageCamera::takeAt(const QSize &size, const std::string &name) const
{
    m_window.resize(size);
    settle();
    save(m_window.grabWindow(), name + ".png");
    const QQuickItem *viewport = pageViewport(m_window);
    if (viewport != nullptr && hiddenHeight(*viewport) > 0)
        save(wholePage(*viewport), name + "-whole.png");
}

// The window is made so high that nothing of the page is left to scroll.
QImage PageCamera::wholePage(const QQuickItem &viewport) const
{
    const int height = m_window.height() + static_cast<int>(std::ceil(hiddenHeight(viewport)));
    m_window.resize(m_window.width(), std::min(height, greatestHeight));
    settle();
    const QRectF part = viewport.mapRectToScene(viewport.boundingRect());
    return m_window.grabWindow().copy(part.toRect());
}

void PageCamera::save(const QImage &picture, const std::string &name) const
{
    const std::filesystem::path path = m_folder / name;
    if (!picture.save(QString::fromStdString(path.string())))
        fatalError("a picture could not be written: " + path.string());
    std::cout << path.string() << std::endl;
}

} // namespace Loadwick
