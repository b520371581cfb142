#include "export/SavedFile.h"

#include <cerrno>

#include "posix/AtomicFile.h"

namespace Loadwick {

QString SavedFile::suggestedName(const QString &kind, const QString &repositoryName, QDate day)
{
    constexpr qsizetype longest = 60;
    constexpr QChar dash = u'-';
    QString name = repositoryName.left(longest);
    for (QChar &letter : name)
        if (!letter.isLetterOrNumber() && letter != u'.' && letter != u'_')
            letter = dash;
    QStringList parts = {kind, name, day.toString(Qt::ISODate)};
    parts.removeAll(QString());
    return parts.join(dash);
}

std::error_code SavedFile::write(const FileSaver::Target &target, const QByteArray &bytes)
{
    std::error_code unknown;
    if (!target.mayReplace && std::filesystem::exists(target.file, unknown))
        return std::make_error_code(std::errc::file_exists);
    if (bytes.isEmpty()) // a picture too large to make
        return std::make_error_code(std::errc::not_enough_memory);
    const std::string_view content(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return AtomicFile::replace(target.file, content);
}

QString SavedFile::reason(const std::error_code &failure)
{
    switch (failure.value()) {
    case EEXIST:
        return tr("a file of that name is there already. Choose another name.");
    case EISDIR:
        return tr("a folder has that name. Choose another name.");
    case ENAMETOOLONG:
        return tr("its name is too long.");
    case ENOENT:
    case ENOTDIR:
        return tr("its folder is not there.");
    case EACCES:
    case EPERM:
        return tr("you may not write in that folder.");
    case EROFS:
        return tr("that disk cannot be written to.");
    case ENOSPC:
    case EDQUOT:
        return tr("the disk is full.");
    default:
        return tr("the system says \"%1\".").arg(QString::fromStdString(failure.message()));
    }
}

} // namespace Loadwick
