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

/// The address at which the window over one data folder listens: an abstract socket name, which
/// needs no file, no clean-up and no permissions. It differs by user and by folder; the folder
/// itself is not read.
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

/// Limits a user to one window per data folder. A second program asks the first to show itself;
/// without an answer, both run side by side.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    /// The desktop's permission to raise the window, as a launcher left it in the environment;
    /// empty without one. Read it before the application exists: GTK's platform theme removes it.
    [[nodiscard]] static QByteArray launchToken();

    /// Asks the running instance, or else listens for later ones. Blocks for a second at most, and
    /// only if a running instance does not answer. A no-op without a folder.
    explicit SingleInstance(const std::filesystem::path &dataFolder,
                            const QByteArray &token = launchToken(), QObject *parent = nullptr);

    /// A running instance shows its window instead, and this one can exit.
    [[nodiscard]] bool isAnswered() const noexcept { return m_isAnswered; }

    /// This instance listens for later ones.
    [[nodiscard]] bool isListening() const noexcept { return m_listener != nullptr; }

Q_SIGNALS:
    /// A second program was started over the same folder and has ended. `token` is the desktop's
    /// permission to raise the window, if it gave one.
    void windowWanted(const QByteArray &token);

private:
    [[nodiscard]] static bool ask(const LocalAddress &address, const QByteArray &token);
    [[nodiscard]] bool listen(const LocalAddress &address);
    void receive();
    void answer(int descriptor);

    bool m_isAnswered = false;
    FileDescriptor m_socket;
    std::unique_ptr<QSocketNotifier> m_listener;
};

} // namespace Loadwick
