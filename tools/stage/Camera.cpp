#include "stage/Camera.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <utility>

#include "stage/WindowControl.h"
#include "text/Fatal.h"

namespace Loadwick {

using namespace WindowControl;

namespace {

constexpr int greatestHeight = 16'000; // picture viewers may not open a taller one

/// Long pages build their content over many frames: once they are done, two pictures are equal.
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

std::string nameOf(Appearance::Scheme scheme, const QSize &size)
{
    return std::string(scheme == Appearance::Dark ? "dark" : "light") + "-" +
           std::to_string(size.width()) + "x" + std::to_string(size.height());
}

} // namespace

PictureFolder::PictureFolder(std::filesystem::path path) : m_path(std::move(path))
{
    std::error_code failure;
    std::filesystem::create_directories(m_path, failure);
    if (failure)
        fatalError("no folder for the pictures: " + m_path.string());
}

void PictureFolder::save(const QImage &picture, const std::string &name) const
{
    const std::filesystem::path path = m_path / (name + ".png");
    if (!picture.save(QString::fromStdString(path.string())))
        fatalError("a picture could not be written: " + path.string());
    std::cout << path.string() << std::endl;
}

Camera::Camera(QQuickWindow &window, std::filesystem::path folder, std::vector<QSize> sizes)
    : m_window(window), m_folder(std::move(folder)), m_sizes(std::move(sizes))
{
    appearanceOf(m_window).setMotion(Appearance::Reduced);
}

template<typename Shoot>
void Camera::forEachLook(const std::string &name, Shoot shoot) const
{
    for (const QSize &size : m_sizes)
        for (const Appearance::Scheme scheme : {Appearance::Light, Appearance::Dark}) {
            appearanceOf(m_window).setScheme(scheme);
            m_window.resize(size);
            settle();
            shoot(name + "-" + nameOf(scheme, size));
        }
}

void Camera::take(const std::string &name) const
{
    forEachLook(name, [this](const std::string &picture) {
        m_folder.save(m_window.grabWindow(), picture);
    });
}

void Camera::takePage(const std::string &name) const
{
    forEachLook(name, [this](const std::string &picture) {
        m_folder.save(pictureAtRest(m_window), picture);
        const QQuickItem *viewport = pageViewport(m_window);
        if (viewport != nullptr && hiddenHeight(*viewport) > 0)
            m_folder.save(wholePage(*viewport), picture + "-whole");
    });
}

// The window is made so tall that the page does not scroll.
QImage Camera::wholePage(const QQuickItem &viewport) const
{
    const int height = m_window.height() + static_cast<int>(std::ceil(hiddenHeight(viewport)));
    m_window.resize(m_window.width(), std::min(height, greatestHeight));
    const QImage whole = pictureAtRest(m_window);
    return whole.copy(viewport.mapRectToScene(viewport.boundingRect()).toRect());
}

} // namespace Loadwick
