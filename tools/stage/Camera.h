#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSize>

namespace Loadwick {

/// A folder for pictures, whose names are printed on standard output. The program ends when one
/// cannot be written.
class PictureFolder
{
public:
    /// Creates the folder if necessary.
    explicit PictureFolder(std::filesystem::path path);

    /// Writes "<name>.png".
    void save(const QImage &picture, const std::string &name) const;

private:
    std::filesystem::path m_path;
};

/// Takes pictures of one window, light and dark at several sizes, without motion.
class Camera
{
public:
    /// The window outlives this object.
    Camera(QQuickWindow &window, std::filesystem::path folder, std::vector<QSize> sizes);

    /// Writes "<name>-<light|dark>-<width>x<height>.png" of the window, for each look.
    void take(const std::string &name) const;

    /// The same of a page at rest, and "...-whole.png" of the whole page if it scrolls, cropped to
    /// its first 16,000 pixels.
    void takePage(const std::string &name) const;

private:
    template<typename Shoot>
    void forEachLook(const std::string &name, Shoot shoot) const;
    [[nodiscard]] QImage wholePage(const QQuickItem &viewport) const;

    QQuickWindow &m_window;
    PictureFolder m_folder;
    std::vector<QSize> m_sizes;
};

} // namespace Loadwick
