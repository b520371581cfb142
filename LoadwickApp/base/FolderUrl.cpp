#include "base/FolderUrl.h"

#include <string>
#include <system_error>

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace Loadwick {
namespace {

bool isOnThisMachine(const QUrl &url)
{
    const QString host = url.host();
    return url.isLocalFile() && (host.isEmpty() || host == QLatin1String("localhost"));
}

} // namespace

std::optional<std::filesystem::path> folderPath(const QUrl &url)
{
    if (!isOnThisMachine(url))
        return std::nullopt;
    const QByteArray bytes = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toUtf8());
    if (bytes.isEmpty() || bytes.contains('\0'))
        return std::nullopt;
    return std::filesystem::path(bytes.toStdString());
}

bool isFolder(const std::filesystem::path &path)
{
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

} // namespace Loadwick
