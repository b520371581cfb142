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

/// Sees to it that a user has one window over one data folder. The program that comes second asks
/// the first to show itself; where that does not answer, both go on side by side.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    /// Asks whoever is there, else is there for those who come later. Takes a second at most, and
    /// that only when somebody is there who does not answer. Without a folder it does nothing.
    explicit SingleInstance(const std::filesystem::path &dataFolder, QObject *parent = nullptr);

    /// Another program's window shows itself instead: this one has nothing left to do.
    [[nodiscard]] bool isAnswered() const noexcept { return m_isAnswered; }

    /// Somebody who comes later would be heard.
    [[nodiscard]] bool isListening() const noexcept { return m_listener != nullptr; }

Q_SIGNALS:
    /// Another program was started over the same folder and has gone again. `token` is the
    /// desktop's leave to come to the front, if it gave one.
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
