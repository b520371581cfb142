#include "theme/KdeAppearanceSource.h"

#include <utility>

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QStandardPaths>

#include "base/QtTaskDispatcher.h"
#include "posix/RegularFile.h"

namespace Loadwick::KdeGlobals {
namespace {

using Entries = QHash<QByteArray, QByteArray>;

/// By "group/name". Flags after a name, as in "name[$i]", are dropped; so are translations.
Entries entries(const QByteArray &text)
{
    Entries entries;
    QByteArray group;
    for (const QByteArray &line : text.split('\n')) {
        const QByteArray trimmed = line.trimmed();
        const qsizetype sign = trimmed.indexOf('=');
        if (trimmed.startsWith('[') && trimmed.endsWith(']') && sign < 0)
            group = trimmed.mid(1, trimmed.size() - 2);
        else if (sign > 0 && !trimmed.startsWith('#'))
            entries.insert(group + '/' + trimmed.left(sign).split('[').constFirst().trimmed(),
                           trimmed.mid(sign + 1).trimmed());
    }
    return entries;
}

/// "red,green,blue", each 0 to 255.
std::optional<QColor> color(const QByteArray &value)
{
    const QList<QByteArray> parts = value.split(',');
    if (parts.size() < 3)
        return {};
    int channels[3] = {};
    for (int index = 0; index < 3; ++index) {
        bool isNumber = false;
        channels[index] = parts[index].trimmed().toInt(&isNumber);
        if (!isNumber || channels[index] < 0 || channels[index] > 255)
            return {};
    }
    return QColor(channels[0], channels[1], channels[2]);
}

std::optional<bool> isDark(const Entries &entries, const QByteArray &scheme)
{
    if (const auto ground = color(entries.value("Colors:Window/BackgroundNormal")))
        return ground->lightness() < 128;
    return scheme.isEmpty() ? std::nullopt : std::optional(scheme.toLower().contains("dark"));
}

/// "family,points,…"
std::optional<double> points(const QByteArray &font)
{
    const double size = font.split(',').value(1).trimmed().toDouble();
    return size > 0 ? std::optional(size) : std::nullopt;
}

std::optional<bool> isStill(const QByteArray &factor)
{
    bool isNumber = false;
    const double value = factor.toDouble(&isNumber);
    return isNumber ? std::optional(value <= 0.0) : std::nullopt;
}

} // namespace

DesktopPreferences preferences(std::string_view text)
{
    const Entries found = entries(QByteArray(text.data(), static_cast<qsizetype>(text.size())));
    const QByteArray scheme = found.value("General/ColorScheme");
    const bool hasStrongScheme = scheme.toLower().contains("highcontrast");
    return {.dark = isDark(found, scheme),
            .reducedMotion = isStill(found.value("KDE/AnimationDurationFactor")),
            .moreContrast = hasStrongScheme ? std::optional(true) : std::nullopt,
            .accent = color(found.value("General/AccentColor")),
            .fontPoints = points(found.value("General/font"))};
}

} // namespace Loadwick::KdeGlobals

namespace Loadwick {
namespace {

constexpr std::size_t byteLimit = 1 << 20;
constexpr int burstMilliseconds = 100;

DesktopPreferences readPreferences(const std::filesystem::path &file)
{
    auto open = RegularFile::open(file);
    const auto text = open ? open->readUpTo(byteLimit) : std::nullopt;
    return text ? KdeGlobals::preferences(*text) : DesktopPreferences();
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

bool KdeAppearanceSource::isDesktopKde()
{
    return qgetenv("XDG_CURRENT_DESKTOP").split(':').contains("KDE");
}

std::filesystem::path KdeAppearanceSource::userFile()
{
    if (!qEnvironmentVariableIsEmpty("XDG_CURRENT_DESKTOP") && !isDesktopKde())
        return {};
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return std::filesystem::path(folder.toStdString()) / "kdeglobals";
}

void KdeAppearanceSource::read()
{
    // KDE replaces the file, which ends the watch on the old one; hence the folder too.
    m_watcher.addPaths({QString::fromStdString(m_file.parent_path().string()),
                        QString::fromStdString(m_file.string())});
    // Without a thread the earlier preferences remain.
    inBackground(
        this, m_dispatcher, [file = m_file] { return readPreferences(file); },
        [this](const DesktopPreferences &preferences) { show(preferences); });
}

void KdeAppearanceSource::show(const DesktopPreferences &preferences)
{
    if (m_preferences == preferences)
        return;
    m_preferences = preferences;
    Q_EMIT changed();
}

} // namespace Loadwick

#include "moc_KdeAppearanceSource.cpp"
