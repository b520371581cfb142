#include "posix/ProcessContext.h"

#include <cerrno>
#include <string_view>
#include <system_error>
#include <vector>

#include <unistd.h>

namespace Loadwick {

Environment currentEnvironment()
{
    Environment environment;
    for (char **entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
        const std::string_view text = *entry;
        const std::size_t equals = text.find('=');
        if (equals != std::string_view::npos && equals > 0)
            environment.emplace(text.substr(0, equals), text.substr(equals + 1));
    }
    return environment;
}

std::filesystem::path currentFolder()
{
    std::error_code error;
    std::filesystem::path folder = std::filesystem::current_path(error);
    return error ? std::filesystem::path("/") : folder;
}

std::string homeFolder(const Environment &environment)
{
    const auto home = environment.find("HOME");
    if (home != environment.end() && !home->second.empty())
        return home->second;
    return recordedHome(getuid());
}

std::string recordedHome(uid_t user, PasswordLookup lookup)
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

} // namespace Loadwick
