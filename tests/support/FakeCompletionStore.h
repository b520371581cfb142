#pragma once

#include "model/OnboardingCompletionStore.h"

namespace Loadwick {

/// Remembers in memory, and counts how often it was told.
class FakeCompletionStore final : public OnboardingCompletionStore
{
public:
    explicit FakeCompletionStore(bool atFirst = false) : completed(atFirst) {}

    [[nodiscard]] bool onboardingCompleted() const override { return completed; }
    void setOnboardingCompleted(bool nowCompleted) override
    {
        completed = nowCompleted;
        ++writes;
    }

    bool completed;
    int writes = 0;
};

} // namespace Loadwick
