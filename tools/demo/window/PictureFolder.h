#pragma once

#include <filesystem>
#include <string>

#include <QImage>

namespace Loadwick {

/// A folder that pictures are written into, each named on the standard output. The program ends
/// when one cannot be written.
class PictureFolder
{
public:
    /// The folder is made if need be.
    explicit PictureFolder(std::filesystem::path path);

    /// Writes "<name>.png".
    void save(const QImage &picture, const std::string &name) const;

private:
    std::filesystem::path m_path;
};

} // namespace Loadwick
