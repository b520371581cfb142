#pragma once

#include <filesystem>

#include "model/OnboardingFlow.h"
#include "posix/ProcessContext.h"

namespace Loadwick {

/// Remembers the completion in the user's preferences: the Boolean "hasCompletedOnboarding" of an
/// INI file, whose other entries are kept. What is no regular file, or too large for preferences,
/// is neither read nor replaced, so that no such thing can keep the program waiting. May be asked
/// on any thread, by one at a time.
class PreferencesCompletionStore final : public OnboardingCompletionStore
{
public:
    /// Creates nothing on disk.
    explicit PreferencesCompletionStore(std::filesystem::path file);

    /// $XDG_CONFIG_HOME/Loadwick/preferences.ini, or the same in ~/.config when that is unset or
    /// relative.
    [[nodiscard]] static std::filesystem::path defaultFile(const Environment &environment);

    [[nodiscard]] bool onboardingCompleted() const override;

    /// Returns when the file is written, with the folders above it, or has turned out not to be.
    void setOnboardingCompleted(bool completed) override;

private:
    std::filesystem::path m_file;
};

} // namespace Loadwick
