#include "desktop/FileOpener.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QStandardPaths>
#include <QTimer>

#include "base/QtTaskDispatcher.h"

namespace Loadwick {
namespace {

constexpr QLatin1String fileManager("org.freedesktop.FileManager1");
constexpr QLatin1String fileManagerPath("/org/freedesktop/FileManager1");
constexpr int showMilliseconds = 25'000; ///< the bus may have to start the file manager

bool isThere(const QString &path)
{
    std::error_code error;
    const auto type = std::filesystem::status(path.toStdString(), error).type();
    return type != std::filesystem::file_type::not_found;
}

/// Where part of a name is not UTF-8, its text has U+FFFD instead and names no file.
QString reasonMissing(const QString &path)
{
    return path.contains(QChar(QChar::ReplacementCharacter))
               ? FileOpener::tr("The name of this file is not UTF-8: no program can be given it.")
               : FileOpener::tr("This file is gone.");
}

} // namespace

FileOpener::FileOpener(std::shared_ptr<TaskDispatcher> dispatcher)
    : FileOpener(std::move(dispatcher), Desktop())
{}

FileOpener::FileOpener(std::shared_ptr<TaskDispatcher> dispatcher, Desktop desktop)
    : m_dispatcher(std::move(dispatcher)), m_desktop(std::move(desktop))
{}

int FileOpener::open(const QString &path)
{
    const auto look = [path, desktop = m_desktop] {
        // Qt looks for it on the interface thread: a folder that does not answer is noticed here.
        (void)QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
        return Finding{.exists = isThere(path), .hasProgram = desktop.hasProgramFor(path)};
    };
    return begin(path, look, [this, path](int request, const Finding &finding) {
        // Asked even then: it may know another way, such as a browser.
        if (!m_desktop.open(QUrl::fromLocalFile(path)) || !finding.hasProgram)
            Q_EMIT failed(request, tr("The desktop names no program for this file."));
    });
}

int FileOpener::showInFolder(const QString &path)
{
    const auto look = [path, desktop = m_desktop] {
        return Finding{.exists = isThere(path), .bus = desktop.connect()};
    };
    return begin(path, look, [this, path](int request, const Finding &finding) {
        askFileManager(request, path, *finding.bus);
    });
}

int FileOpener::begin(const QString &path, const Look &look, const Then &then)
{
    const int request = ++m_lastRequest;
    const auto isOver = std::make_shared<bool>(false);
    const auto giveUp = [this, request, isOver] {
        if (!std::exchange(*isOver, true))
            Q_EMIT failed(request, tr("This file cannot be reached."));
    };
    const auto answer = [this, request, path, then, isOver](const Finding &finding) {
        if (std::exchange(*isOver, true))
            return;
        if (finding.exists)
            then(request, finding);
        else
            Q_EMIT failed(request, reasonMissing(path));
    };
    const bool isStarted = inBackground(this, m_dispatcher, look, answer);
    QTimer::singleShot(isStarted ? m_desktop.patience : std::chrono::milliseconds(0), this, giveUp);
    return request;
}

void FileOpener::askFileManager(int request, const QString &path, const QDBusConnection &bus)
{
    if (!bus.isConnected())
        return openFolder(request, path);
    QDBusMessage question = QDBusMessage::createMethodCall(
        fileManager, fileManagerPath, fileManager, QStringLiteral("ShowItems"));
    const QString url = QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
    question.setArguments({QStringList(url), QString()});
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(question, showMilliseconds), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, request, path] {
        watcher->deleteLater();
        if (watcher->isError())
            openFolder(request, path);
    });
}

void FileOpener::openFolder(int request, const QString &path)
{
    const QString folder = path.left(std::max<qsizetype>(1, path.lastIndexOf(u'/')));
    if (!m_desktop.open(QUrl::fromLocalFile(folder)))
        Q_EMIT failed(request, tr("The desktop names no program that shows folders."));
}

} // namespace Loadwick

#include "moc_FileOpener.cpp"
