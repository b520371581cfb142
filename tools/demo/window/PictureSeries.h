#pragma once

#include <filesystem>
#include <string>

#include <QQuickWindow>

#include "demo/window/PictureFolder.h"

namespace Loadwick {

/// Takes pictures of one window, each state light and dark and at the default and the smallest
/// size, and prints their names.
class PictureSeries
{
public:
    /// The window outlives this object. The folder is made if need be.
    PictureSeries(QQuickWindow &window, std::filesystem::path folder);

    /// Writes "<state>-<light|dark>-<width>x<height>.png" for each of them. The program ends when a
    /// picture cannot be written.
    void take(const std::string &state) const;

private:
    QQuickWindow &m_window;
    PictureFolder m_folder;
};

} // namespace Loadwick
