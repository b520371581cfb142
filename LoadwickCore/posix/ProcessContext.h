#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace Loadwick {

/// Environment variables by name. Names and values are bytes.
using Environment = std::map<std::string, std::string>;

/// This process's environment. Of a name that occurs twice the first one counts, as for getenv;
/// an entry without a name is left out.
[[nodiscard]] Environment currentEnvironment();

/// This process's current folder; "/" when it has been removed.
[[nodiscard]] std::filesystem::path currentFolder();

/// The user's home folder: HOME when it is set and not empty, else the password database's entry,
/// else "/".
[[nodiscard]] std::string homeFolder(const Environment &environment);

} // namespace Loadwick
