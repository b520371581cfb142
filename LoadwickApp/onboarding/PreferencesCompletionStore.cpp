#include "onboarding/PreferencesCompletionStore.h"

#include <cstdint>
#include <system_error>
#include <utility>

#include <QFile>
#include <QSettings>

namespace Loadwick {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t mostBytes = 1 << 20;
constexpr auto key = "hasCompletedOnboarding";

bool canBePreferences(const fs::path &file)
{
    std::error_code failure;
    const std::uintmax_t byteCount = fs::file_size(file, failure); // of regular files only
    return !failure && byteCount <= mostBytes;
}

bool isMissing(const fs::path &file)
{
    std::error_code ignored;
    return fs::status(file, ignored).type() == fs::file_type::not_found;
}

} // namespace

PreferencesCompletionStore::PreferencesCompletionStore(fs::path file) : m_file(std::move(file)) {}

fs::path PreferencesCompletionStore::defaultFile(const Environment &environment)
{
    const fs::path below = "Loadwick/preferences.ini";
    const auto found = environment.find("XDG_CONFIG_HOME");
    if (found != environment.end() && fs::path(found->second).is_absolute())
        return found->second / below;
    return fs::path(homeFolder(environment)) / ".config" / below;
}

bool PreferencesCompletionStore::onboardingCompleted() const
{
    if (!canBePreferences(m_file))
        return false;
    QSettings settings(QFile::decodeName(m_file.c_str()), QSettings::IniFormat);
    return settings.value(QLatin1String(key), false).toBool();
}

void PreferencesCompletionStore::setOnboardingCompleted(bool completed)
{
    if (!canBePreferences(m_file) && !isMissing(m_file))
        return;
    QSettings settings(QFile::decodeName(m_file.c_str()), QSettings::IniFormat);
    settings.setValue(QLatin1String(key), completed);
    settings.sync();
}

} // namespace Loadwick
