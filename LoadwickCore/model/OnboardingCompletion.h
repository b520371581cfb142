#pragma once

#include <memory>

#include "model/OnboardingCompletionStore.h"

namespace Loadwick {

/// Whether the walk-through was completed once, asked of its store each time.
class OnboardingCompletion
{
public:
    /// Without a store the program ends.
    explicit OnboardingCompletion(std::shared_ptr<OnboardingCompletionStore> store);

    [[nodiscard]] bool isComplete() const { return m_store->onboardingCompleted(); }
    [[nodiscard]] bool shouldPresent() const { return !isComplete(); }
    void markComplete() { m_store->setOnboardingCompleted(true); }

private:
    std::shared_ptr<OnboardingCompletionStore> m_store;
};

} // namespace Loadwick
