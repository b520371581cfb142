#pragma once

#include <cstddef>
#include <string>

#include <pwd.h>
#include <sys/types.h>

/// What the system has recorded of its users.
namespace Loadwick::PasswordDatabase {

/// A look-up as getpwuid_r does it.
using Lookup = int (*)(uid_t, passwd *, char *, std::size_t, passwd **);

/// The home folder of `user`; "/" when none is recorded. An entry of any length is read, and a
/// look-up that was interrupted is taken up again.
[[nodiscard]] std::string homeOf(uid_t user, Lookup lookup = getpwuid_r);

} // namespace Loadwick::PasswordDatabase
