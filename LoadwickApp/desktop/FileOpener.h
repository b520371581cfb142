#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include <QDBusConnection>
#include <QDesktopServices>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include "desktop/OpeningPrograms.h"
#include "model/TaskDispatcher.h"

namespace Loadwick {

/// Hands files to the programs of the desktop, without reading them. Disks and buses are asked in
/// the background, within a time limit. Belongs to the interface thread.
class FileOpener final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")

public:
    struct Desktop
    {
        /// Called on the interface thread. Qt only starts a program there, which continues by
        /// itself, and finds it in folders that have just answered.
        std::function<bool(const QUrl &url)> open = &QDesktopServices::openUrl;
        /// These two are called off the interface thread.
        std::function<bool(const QString &file)> hasProgramFor = &OpeningPrograms::existFor;
        std::function<QDBusConnection()> connect = &QDBusConnection::sessionBus;
        std::chrono::milliseconds patience = std::chrono::seconds(10);
    };

    explicit FileOpener(std::shared_ptr<TaskDispatcher> dispatcher);
    FileOpener(std::shared_ptr<TaskDispatcher> dispatcher, Desktop desktop);

    /// Opens the file in the program that the desktop has for it. Returns the request's number.
    Q_INVOKABLE int open(const QString &path);

    /// Has the file manager select the file (org.freedesktop.FileManager1), or without an answer
    /// opens its folder. Returns the request's number.
    Q_INVOKABLE int showInFolder(const QString &path);

Q_SIGNALS:
    /// Says in one line why the request came to nothing. Never emitted before the request returns.
    void failed(int request, const QString &words);

private:
    /// What the background found.
    struct Finding
    {
        bool exists;
        bool hasProgram = true;
        std::optional<QDBusConnection> bus = {};
    };
    using Look = std::function<Finding()>;
    using Then = std::function<void(int request, const Finding &finding)>;

    [[nodiscard]] int begin(const QString &path, const Look &look, const Then &then);
    void askFileManager(int request, const QString &path, const QDBusConnection &bus);
    void openFolder(int request, const QString &path);

    std::shared_ptr<TaskDispatcher> m_dispatcher;
    Desktop m_desktop;
    int m_lastRequest = 0;
};

} // namespace Loadwick
