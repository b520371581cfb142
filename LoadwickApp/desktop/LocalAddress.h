#pragma once

#include <filesystem>

#include <sys/socket.h>
#include <sys/un.h>

namespace Loadwick {

/// The address at which the window over one data folder listens: a name that belongs to no file
/// system, so that nothing has to be created, may be left behind or be forbidden. It differs from
/// user to user and from folder to folder; the folder itself is not looked at.
class LocalAddress
{
public:
    explicit LocalAddress(const std::filesystem::path &dataFolder);

    [[nodiscard]] const sockaddr *address() const noexcept;
    [[nodiscard]] socklen_t length() const noexcept { return m_length; }

private:
    sockaddr_un m_address = {};
    socklen_t m_length = 0;
};

} // namespace Loadwick
