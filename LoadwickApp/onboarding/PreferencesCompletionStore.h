#pragma once

#include <filesystem>

#include "model/OnboardingFlow.h"
#include "posix/ProcessContext.h"

namespace Loadwick {

/// Stores the completion in the user's preferences: the Boolean "hasCompletedOnboarding" of an INI
/// file, whose other entries are kept. Anything but a regular file of a sensible size is neither
/// read nor replaced, so that it cannot block the program. Callable on any thread, one call at a
/// time.
class PreferencesCompletionStore final : public OnboardingCompletionStore
{
public:
    /// Creates nothing on disk.
    explicit PreferencesCompletionStore(std::filesystem::path file);

    /// $XDG_CONFIG_HOME/Loadwick/preferences.ini, with ~/.config if that is unset or relative.
    [[nodiscard]] static std::filesystem::path defaultFile(const Environment &environment);

    [[nodiscard]] bool onboardingCompleted() const override;

    /// Returns once writing the file and its parent folders has succeeded or failed.
    void setOnboardingCompleted(bool completed) override;

private:
    std::filesystem::path m_file;
};

} // namespace Loadwick
