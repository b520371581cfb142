#pragma once

#include <filesystem>
#include <string>

#include <QImage>
#include <QQuickWindow>
#include <QSize>

namespace Loadwick {

/// Takes pictures of a page of the program's window and prints their names. Motion stops while it
/// is there.
class PageCamera
{
public:
    /// The window outlives this object. The folder is made if need be.
    PageCamera(QQuickWindow &window, std::filesystem::path folder);

    /// Writes "<name>-<light|dark>-<width>x<height>.png" of the whole window for the smallest, the
    /// first and a large size, and beside it "...-whole.png" of the whole page where there is more
    /// of it than can be seen at once. The program ends when a picture cannot be written.
    void take(const std::string &name) const;

private:
    void takeAt(const QSize &size, const std::string &name) const;
    [[nodiscard]] QImage wholePage(const QQuickItem &viewport) const;
    void save(const QImage &picture, const std::string &name) const;

    QQuickWindow &m_window;
    std::filesystem::path m_folder;
};

} // namespace Loadwick
