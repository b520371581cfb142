#pragma once

#include <filesystem>

#include "model/OnboardingFlow.h"
#include "posix/ProcessContext.h"

namespace Loadwick {

/// Remembers the completion in the user's preferences: the Boolean "hasCompletedOnboarding" of an
/// INI file, whose other entries are kept. Anything but a regular file of a sensible size is
/// neither read nor replaced, so that it cannot keep the program waiting. Any thread may call it,
/// one at a time.
class PreferencesCompletionStore final : public OnboardingCompletionStore
{
public:
    /// Creates nothing on disk.
    explicit PreferencesCompletionStore(std::filesystem::path file);

    /// $XDG_CONFIG_HOME/Loadwick/preferences.ini, with ~/.config if that is unset or relative.
    [[nodiscard]] static std::filesystem::path defaultFile(const Environment &environment);

    [[nodiscard]] bool onboardingCompleted() const override;

    /// Returns once the file and the folders above it are written, or have failed to be.
    void setOnboardingCompleted(bool completed) override;

private:
    std::filesystem::path m_file;
};

} // namespace Loadwick
