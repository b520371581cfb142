#include "posix/ProcessContext.h"

#include <string_view>
#include <system_error>

#include <unistd.h>

#include "posix/PasswordDatabase.h"

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
    return PasswordDatabase::homeOf(getuid());
}

} // namespace Loadwick
