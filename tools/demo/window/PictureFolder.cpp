#include "demo/window/PictureFolder.h"

#include <iostream>
#include <utility>

#include "text/Fatal.h"

namespace Loadwick {

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

} // namespace Loadwick
