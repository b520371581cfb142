#pragma once

namespace Loadwick {

/// Where the program remembers, beyond its own life, that the user has been walked through.
class OnboardingCompletionStore
{
public:
    OnboardingCompletionStore() = default;
    virtual ~OnboardingCompletionStore() = default;

    OnboardingCompletionStore(const OnboardingCompletionStore &) = delete;
    OnboardingCompletionStore &operator=(const OnboardingCompletionStore &) = delete;

    /// False where nothing was ever remembered, or nothing can be read.
    [[nodiscard]] virtual bool onboardingCompleted() const = 0;

    /// Fails in silence: preferences that cannot be written stop nobody.
    virtual void setOnboardingCompleted(bool completed) = 0;
};

} // namespace Loadwick
