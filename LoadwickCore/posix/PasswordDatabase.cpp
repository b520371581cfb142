#include "posix/PasswordDatabase.h"

#include <cerrno>
#include <vector>

namespace Loadwick::PasswordDatabase {

std::string homeOf(uid_t user, Lookup lookup)
{
    std::vector<char> buffer(1024);
    passwd entry{};
    passwd *found = nullptr;
    int outcome = lookup(user, &entry, buffer.data(), buffer.size(), &found);
    while (outcome == ERANGE || outcome == EINTR) {
        if (outcome == ERANGE)
            buffer.resize(buffer.size() * 2);
        outcome = lookup(user, &entry, buffer.data(), buffer.size(), &found);
    }
    if (found == nullptr || found->pw_dir == nullptr || *found->pw_dir == '\0')
        return "/";
    return found->pw_dir;
}

} // namespace Loadwick::PasswordDatabase
