#pragma once

#include <filesystem>
#include <memory>

#include <sys/socket.h>
#include <sys/un.h>

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

#include "posix/FileDescriptor.h"

namespace Loadwick {

/// The address at which the window over one data folder listens: an abstract socket name, so that
/// there is nothing to create, to leave behind or to forbid. It differs from user to user and from
/// folder to folder; the folder itself is not read.
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

/// Keeps a user to one window over one data folder. A second program asks the first to show itself;
/// without an answer, both go on side by side.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    /// Asks the instance that is running, or else listens for later ones. Blocks for a second at
    /// most, and only when a running instance does not answer. Without a folder it does nothing.
    explicit SingleInstance(const std::filesystem::path &dataFolder, QObject *parent = nullptr);

    /// A running instance shows its window instead: this one has nothing left to do.
    [[nodiscard]] bool isAnswered() const noexcept { return m_isAnswered; }

    /// Later instances are heard.
    [[nodiscard]] bool isListening() const noexcept { return m_listener != nullptr; }

Q_SIGNALS:
    /// A second program was started over the same folder and has ended. `token` is the desktop's
    /// permission to come to the front, if it gave one.
    void windowWanted(const QByteArray &token);

private:
    [[nodiscard]] static bool ask(const LocalAddress &address);
    [[nodiscard]] bool listen(const LocalAddress &address);
    void receive();
    void answer(int descriptor);

    bool m_isAnswered = false;
    FileDescriptor m_socket;
    std::unique_ptr<QSocketNotifier> m_listener;
};

} // namespace Loadwick
