#include "support/StandInFileManager.h"

#include <utility>

namespace Loadwick {
namespace {

constexpr QLatin1String service("org.freedesktop.FileManager1");
constexpr QLatin1String path("/org/freedesktop/FileManager1");

} // namespace

StandInFileManager::StandInFileManager(QDBusConnection bus) : m_bus(std::move(bus))
{
    if (!m_bus.registerObject(path, this, QDBusConnection::ExportAllSlots) ||
        !m_bus.registerService(service))
        qFatal("The stand-in for a file manager cannot register on the bus.");
}

StandInFileManager::~StandInFileManager()
{
    m_bus.unregisterService(service);
    m_bus.unregisterObject(path);
}

} // namespace Loadwick
