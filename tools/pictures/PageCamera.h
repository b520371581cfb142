#pragma once

#include <filesystem>
#include <string>

#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>

#include "demo/window/PictureFolder.h"

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
    /// of it than can be seen at once: of its first 16,000 pixels, where it is longer than that.
    /// The program ends when a picture cannot be written.
    void take(const std::string &name) const;

private:
    [[nodiscard]] QImage wholePage(const QQuickItem &viewport) const;

    QQuickWindow &m_window;
    PictureFolder m_folder;
};

} // namespace Loadwick
