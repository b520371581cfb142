#include "desktop/LocalAddress.h"

#include <algorithm>
#include <cstddef>

#include <unistd.h>

#include <QByteArray>
#include <QCryptographicHash>

namespace Loadwick {
namespace {

QByteArray nameOf(const std::filesystem::path &dataFolder)
{
    // With an end of its own, however the folder is written.
    const std::filesystem::path normal = (dataFolder / "").lexically_normal();
    const QByteArray folder = QByteArray::fromStdString(normal.string());
    return "loadwick-" + QByteArray::number(::geteuid()) + '-' +
           QCryptographicHash::hash(folder, QCryptographicHash::Sha256).toHex();
}

} // namespace

LocalAddress::LocalAddress(const std::filesystem::path &dataFolder)
{
    const QByteArray name = nameOf(dataFolder);
    static_assert(sizeof m_address.sun_path > 1 + 9 + 10 + 1 + 64);
    m_address.sun_family = AF_UNIX;
    // A first byte of zero makes it a name beside the file system's.
    std::copy(name.begin(), name.end(), m_address.sun_path + 1);
    m_length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 +
                                      static_cast<std::size_t>(name.size()));
}

const sockaddr *LocalAddress::address() const noexcept
{
    return reinterpret_cast<const sockaddr *>(&m_address);
}

} // namespace Loadwick
