#include "probe/FolderAccess.h"

#include <cerrno>

#include "posix/FolderListing.h"
#include "process/BoundedCall.h"
#include "text/PathText.h"

namespace Loadwick::FolderAccess {

namespace {

bool canBeListed(const std::filesystem::path &repository)
{
    const FolderListing entries = openListing(repository);
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
