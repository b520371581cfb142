#include "probe/FolderAccess.h"

#include <cerrno>
#include <memory>
#include <string>

#include <dirent.h>

#include "process/BoundedCall.h"
#include "text/PathText.h"

namespace Loadwick::FolderAccess {

namespace {

bool canBeListed(const std::filesystem::path &repository)
{
    if (repository.native().find('\0') != std::string::npos)
        return false;
    const auto close = [](DIR *open) { closedir(open); };
    const std::unique_ptr<DIR, decltype(close)> entries(opendir(repository.c_str()), close);
    if (!entries)
        return false;
    errno = 0;
    while (readdir(entries.get()) != nullptr)
        errno = 0;
    return errno == 0;
}

} // namespace

std::optional<ProbeError> checkSynchronously(const std::filesystem::path &repository)
{
    if (canBeListed(repository))
        return std::nullopt;
    return ProbeError::repositoryUnreadable(pathText(repository));
}

std::optional<ProbeError> preflight(const std::filesystem::path &repository,
                                    std::chrono::duration<double> limit)
{
    const auto answer = callWithin(limit, [repository] { return checkSynchronously(repository); });
    return answer ? *answer : ProbeError::repositoryUnreadable(pathText(repository));
}

} // namespace Loadwick::FolderAccess
