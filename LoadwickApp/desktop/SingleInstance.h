#pragma once

#include <filesystem>
#include <memory>

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

#include "desktop/LocalAddress.h"
#include "posix/FileDescriptor.h"

namespace Loadwick {

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
