#pragma once

#include <memory>

#include <QObject>

#include "onboarding/OnboardingPresenter.h"
#include "support/ScanFakes.h"

namespace Loadwick {

/// A first launch whose sheet is about to open.
class SampleOnboarding : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Loadwick::OnboardingPresenter *presenter READ presenter CONSTANT)

public:
    explicit SampleOnboarding(QObject *parent = nullptr);

    [[nodiscard]] OnboardingPresenter *presenter() { return &m_presenter; }

    /// How often the completion was remembered.
    Q_INVOKABLE int writes() const { return m_store->writes; }

private:
    std::shared_ptr<FakeCompletionStore> m_store = std::make_shared<FakeCompletionStore>();
    OnboardingPresenter m_presenter{m_store};
};

} // namespace Loadwick
