#include "demo/window/PictureSeries.h"

#include <array>
#include <iostream>
#include <utility>

#include <QImage>
#include <QSize>

#include "demo/window/EventWait.h"
#include "demo/window/WindowAppearance.h"
#include "probe/Fatal.h"

namespace Loadwick {

namespace {

constexpr std::array<QSize, 2> sizes{QSize(1180, 780), QSize(960, 640)};
constexpr std::array<std::pair<Appearance::Scheme, const char *>, 2> schemes{
    {{Appearance::Light, "light"}, {Appearance::Dark, "dark"}}};

std::string sizeText(const QSize &size)
{
    return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

} // namespace

PictureSeries::PictureSeries(QQuickWindow &window, std::filesystem::path folder)
    : m_window(window), m_folder(std::move(folder))
{
    std::error_code failure;
    std::filesystem::create_directories(m_folder, failure);
    if (failure)
        fatalError("no folder for the pictures: " + m_folder.string());
    appearanceOf(m_window).setMotion(Appearance::Reduced);
}

void PictureSeries::take(const std::string &state) const
{
    for (const QSize &size : sizes)
        for (const auto &[scheme, name] : schemes) {
            m_window.resize(size);
            appearanceOf(m_window).setScheme(scheme);
            settle();
            save(state + "-" + name + "-" + sizeText(size) + ".png");
        }
}

void PictureSeries::save(const std::string &name) const
{
    const std::filesystem::path path = m_folder / name;
    if (!m_window.grabWindow().save(QString::fromStdString(path.string())))
        fatalError("a picture could not be written: " + path.string());
    std::cout << path.string() << std::endl;
}

} // namespace Loadwick
