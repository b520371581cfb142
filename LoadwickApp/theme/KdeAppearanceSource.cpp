#include "theme/KdeAppearanceSource.h"

#include <utility>

#include <QStandardPaths>

#include "base/QtTaskDispatcher.h"
#include "posix/RegularFile.h"
#include "theme/KdeGlobals.h"

namespace Loadwick {
namespace {

constexpr std::size_t byteLimit = 1 << 20;
constexpr int burstMilliseconds = 100;

DesktopWishes readWishes(const std::filesystem::path &file)
{
    auto open = RegularFile::open(file);
    const auto text = open ? open->readUpTo(byteLimit) : std::nullopt;
    return text ? KdeGlobals::wishes(*text) : DesktopWishes();
}

} // namespace

KdeAppearanceSource::KdeAppearanceSource(std::filesystem::path file,
                                         std::shared_ptr<TaskDispatcher> dispatcher,
                                         QObject *parent)
    : AppearanceSource(parent), m_file(std::move(file)), m_dispatcher(std::move(dispatcher))
{
    m_afterwards.setSingleShot(true);
    m_afterwards.setInterval(burstMilliseconds);
    const auto readLater = [this] { m_afterwards.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, readLater);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, readLater);
    connect(&m_afterwards, &QTimer::timeout, this, &KdeAppearanceSource::read);
    if (!m_file.empty())
        read();
}

std::filesystem::path KdeAppearanceSource::userFile()
{
    const QByteArray desktop = qgetenv("XDG_CURRENT_DESKTOP");
    if (!desktop.isEmpty() && !desktop.split(':').contains("KDE"))
        return {};
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return std::filesystem::path(folder.toStdString()) / "kdeglobals";
}

void KdeAppearanceSource::read()
{
    // KDE replaces the file, after which the watch on the old one is gone; hence the folder too.
    m_watcher.addPaths({QString::fromStdString(m_file.parent_path().string()),
                        QString::fromStdString(m_file.string())});
    // Without a thread the earlier wishes remain.
    inBackground(
        this, m_dispatcher, [file = m_file] { return readWishes(file); },
        [this](const DesktopWishes &wishes) { show(wishes); });
}

void KdeAppearanceSource::show(const DesktopWishes &wishes)
{
    if (m_wishes == wishes)
        return;
    m_wishes = wishes;
    Q_EMIT changed();
}

} // namespace Loadwick
