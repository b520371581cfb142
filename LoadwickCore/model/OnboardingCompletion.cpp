#include "model/OnboardingCompletion.h"

#include <utility>

#include "text/Fatal.h"

namespace Loadwick {

OnboardingCompletion::OnboardingCompletion(std::shared_ptr<OnboardingCompletionStore> store)
    : m_store(std::move(store))
{
    if (!m_store)
        fatalError("The walk-through needs a store for its completion.");
}

} // namespace Loadwick
