#include "export/SavingFailure.h"

#include <cerrno>

namespace Loadwick {

QString SavingFailure::reason(const std::error_code &failure)
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
