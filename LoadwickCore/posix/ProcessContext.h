#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>

#include <pwd.h>
#include <sys/types.h>

namespace Loadwick {

/// Environment variables by name. Names and values are bytes.
using Environment = std::map<std::string, std::string>;

/// This process's environment. The first of two equal names counts, as for getenv; an entry without
/// a name is left out.
[[nodiscard]] Environment currentEnvironment();

/// This process's current folder; "/" when it has been removed.
[[nodiscard]] std::filesystem::path currentFolder();

/// The user's home folder: HOME when it is set and not empty, else the password database's entry,
/// else "/".
[[nodiscard]] std::string homeFolder(const Environment &environment);

/// A lookup with the signature of getpwuid_r.
using PasswordLookup = int (*)(uid_t, passwd *, char *, std::size_t, passwd **);

/// The home folder that the password database records for `user`; "/" when it records none. Reads
/// an entry of any length and retries an interrupted lookup.
[[nodiscard]] std::string recordedHome(uid_t user, PasswordLookup lookup = getpwuid_r);

} // namespace Loadwick
