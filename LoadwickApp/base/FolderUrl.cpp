#include "base/FolderUrl.h"

#include <string>
#include <system_error>

#include <QByteArray>
#include <QDir>
#include <QRegularExpression>
#include <QString>
#include <QUrl>

namespace Loadwick {
namespace {

bool isOnThisMachine(const QUrl &url)
{
    const QString host = url.host();
    return url.isLocalFile() && (host.isEmpty() || host == QLatin1String("localhost"));
}

/// Nothing for what is no address of a file of this machine. Not left to QUrl: a file has neither
/// query nor fragment, and of what was typed "#" and "?" belong to a name. So does each "%" where
/// one of them is no escape.
std::optional<std::filesystem::path> addressedPath(const QString &text)
{
    const QLatin1String scheme("file://");
    const QByteArray place = text.mid(scheme.size()).toUtf8();
    const qsizetype root = place.indexOf('/');
    const bool isHere = root == 0 || place.startsWith("localhost/");
    if (!text.startsWith(scheme, Qt::CaseInsensitive) || !isHere)
        return std::nullopt;
    static const QRegularExpression loosePercent(QStringLiteral("%(?![0-9A-Fa-f]{2})"));
    const QByteArray path = place.mid(root);
    return std::filesystem::path(
        (text.contains(loosePercent) ? path : QByteArray::fromPercentEncoding(path)).toStdString());
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

QUrl fileUrl(const QUrl &folder, const QString &name)
{
    return QUrl::fromEncoded(folder.toEncoded() + '/' + QUrl::toPercentEncoding(name));
}

QUrl pathUrl(const std::filesystem::path &path)
{
    return QUrl::fromEncoded("file://" +
                             QByteArray::fromStdString(path.string()).toPercentEncoding("/"));
}

QUrl typedFileUrl(const QUrl &folder, const QString &text)
{
    if (const auto addressed = addressedPath(text))
        return pathUrl(*addressed);
    const bool isFromHome = text == QLatin1String("~") || text.startsWith(QLatin1String("~/"));
    const QString path = isFromHome ? QDir::homePath() + text.mid(1) : text;
    const QByteArray encoded = QUrl::toPercentEncoding(path, "/");
    return QUrl::fromEncoded(path.startsWith(QLatin1Char('/'))
                                 ? "file://" + encoded
                                 : folder.toEncoded() + '/' + encoded);
}

bool isFolder(const std::filesystem::path &path)
{
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

} // namespace Loadwick
