#include "desktop/SingleInstance.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QCryptographicHash>

#include "process/Deadline.h"

namespace Loadwick {
namespace {

constexpr double answerSeconds = 1.0;
constexpr int waitingLine = 8;
constexpr qsizetype longestToken = 512;
constexpr char lineEnd = '\n';

QByteArray nameOf(const std::filesystem::path &dataFolder)
{
    // With a trailing slash, whether or not the folder is given with one.
    const std::filesystem::path normal = (dataFolder / "").lexically_normal();
    const QByteArray folder = QByteArray::fromStdString(normal.string());
    return "loadwick-" + QByteArray::number(::geteuid()) + '-' +
           QCryptographicHash::hash(folder, QCryptographicHash::Sha256).toHex();
}

FileDescriptor newSocket()
{
    return FileDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

/// Abstract names have no owner: another user may have taken this one.
bool isOurs(int descriptor)
{
    ucred peer = {};
    socklen_t length = sizeof peer;
    return ::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &length) == 0 &&
           peer.uid == ::geteuid();
}

/// One that cannot be sent is left out.
QByteArray line(const QByteArray &token)
{
    const bool isUnfit = token.contains(lineEnd) || token.size() > longestToken;
    return (isUnfit ? QByteArray() : token) + lineEnd;
}

bool send(int descriptor, const QByteArray &bytes)
{
    const auto size = static_cast<std::size_t>(bytes.size());
    return ::send(descriptor, bytes.constData(), size, MSG_NOSIGNAL) == bytes.size();
}

bool becomesReadable(int descriptor)
{
    const Deadline deadline = deadlineAfter(answerSeconds);
    pollfd poll = {.fd = descriptor, .events = POLLIN, .revents = 0};
    int count = 0;
    do {
        count = ::poll(&poll, 1, millisecondsUntil(deadline, std::chrono::seconds(1)));
    } while (count < 0 && errno == EINTR);
    return count > 0;
}

/// The data so far: its first line, without the line end.
QByteArray received(int descriptor)
{
    std::array<char, longestToken + 1> bytes{};
    const ssize_t count = ::recv(descriptor, bytes.data(), bytes.size(), 0);
    const QByteArray all(bytes.data(), count > 0 ? static_cast<qsizetype>(count) : 0);
    return all.left(all.indexOf(lineEnd));
}

} // namespace

LocalAddress::LocalAddress(const std::filesystem::path &dataFolder)
{
    const QByteArray name = nameOf(dataFolder);
    static_assert(sizeof m_address.sun_path > 1 + 9 + 10 + 1 + 64);
    m_address.sun_family = AF_UNIX;
    // A first byte of zero makes the name abstract.
    std::copy(name.begin(), name.end(), m_address.sun_path + 1);
    m_length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 +
                                      static_cast<std::size_t>(name.size()));
}

const sockaddr *LocalAddress::address() const noexcept
{
    return reinterpret_cast<const sockaddr *>(&m_address);
}

QByteArray SingleInstance::launchToken()
{
    QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");
    if (token.isEmpty()) // launchers of GLib before 2.76 leave it here
        token = qgetenv("DESKTOP_STARTUP_ID");
    return token;
}

SingleInstance::SingleInstance(const std::filesystem::path &dataFolder, const QByteArray &token,
                               QObject *parent)
    : QObject(parent)
{
    if (dataFolder.empty())
        return;
    const LocalAddress address(dataFolder);
    m_isAnswered = ask(address, token);
    // If two start at once, one gets no answer and then finds the name in use.
    if (!m_isAnswered && !listen(address) && errno == EADDRINUSE)
        m_isAnswered = ask(address, token);
}

bool SingleInstance::ask(const LocalAddress &address, const QByteArray &token)
{
    const FileDescriptor socket = newSocket();
    const int descriptor = socket.number();
    if (!socket.isOpen() || ::connect(descriptor, address.address(), address.length()) != 0)
        return false;
    return isOurs(descriptor) && send(descriptor, line(token)) && becomesReadable(descriptor) &&
           !received(descriptor).isEmpty();
}

bool SingleInstance::listen(const LocalAddress &address)
{
    FileDescriptor socket = newSocket();
    if (!socket.isOpen() || ::bind(socket.number(), address.address(), address.length()) != 0 ||
        ::listen(socket.number(), waitingLine) != 0)
        return false;
    m_socket = std::move(socket);
    m_listener = std::make_unique<QSocketNotifier>(m_socket.number(), QSocketNotifier::Read);
    connect(m_listener.get(), &QSocketNotifier::activated, this, &SingleInstance::receive);
    return true;
}

void SingleInstance::receive()
{
    FileDescriptor visitor(
        ::accept4(m_socket.number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!visitor.isOpen() || !isOurs(visitor.number()))
        return;
    // Owned by the notifier's connection: it closes once the visitor was heard or has gone.
    const auto held = std::make_shared<FileDescriptor>(std::move(visitor));
    auto *words = new QSocketNotifier(held->number(), QSocketNotifier::Read, this);
    connect(words, &QSocketNotifier::activated, this, [this, words, held] {
        words->setEnabled(false);
        words->deleteLater();
        answer(held->number());
    });
}

void SingleInstance::answer(int descriptor)
{
    const QByteArray token = received(descriptor);
    if (send(descriptor, QByteArrayLiteral("shown\n")))
        Q_EMIT windowWanted(token);
}

} // namespace Loadwick

#include "moc_SingleInstance.cpp"
