#pragma once

#include <chrono>
#include <memory>

#include <QList>
#include <QObject>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include "base/TextRows.h"
#include "model/OnboardingFlow.h"
#include "model/TaskDispatcher.h"
#include "onboarding/OnboardingStepTexts.h"

namespace Loadwick {

/// The walk-through of the first launch: whether its sheet is open, and where it stands. Belongs to
/// the interface thread.
class OnboardingPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")
    Q_PROPERTY(bool isPresented READ isPresented NOTIFY isPresentedChanged)
    Q_PROPERTY(int stepCount READ stepCount CONSTANT)
    Q_PROPERTY(int currentIndex READ currentIndex NOTIFY moved)
    Q_PROPERTY(Loadwick::OnboardingStepTexts *currentStep READ currentStep NOTIFY moved)
    Q_PROPERTY(QString position READ position NOTIFY moved)
    Q_PROPERTY(bool isFinished READ isFinished NOTIFY isFinishedChanged)
    Q_PROPERTY(QAbstractItemModel *legend READ legend CONSTANT)
    Q_PROPERTY(QString legendCaption READ legendCaption CONSTANT)

public:
    /// From the window's appearance to the sheet's.
    static constexpr std::chrono::milliseconds delay{300};

    explicit OnboardingPresenter(std::shared_ptr<OnboardingCompletionStore> store);

    /// Asks the store in the background whether the walk-through was completed. If it was not, the
    /// sheet opens after the delay, at the first step, unless that was called off meanwhile.
    void presentOnboardingIfFirstLaunch(const std::shared_ptr<TaskDispatcher> &dispatcher);

    /// Calls off what was asked for and has not come yet; an open sheet stays.
    void callOff();

    [[nodiscard]] bool isPresented() const noexcept { return m_isPresented; }
    /// To be called when the sheet has faded out.
    Q_INVOKABLE void dismiss();

    [[nodiscard]] int stepCount() const { return OnboardingFlow::stepCount(); }
    /// Owned by this presenter; `index` is one of the steps'.
    Q_INVOKABLE Loadwick::OnboardingStepTexts *step(int index) const;
    [[nodiscard]] int currentIndex() const { return m_flow.currentIndex(); }
    [[nodiscard]] OnboardingStepTexts *currentStep() const;
    /// "Step 1 of 4".
    [[nodiscard]] QString position() const;
    [[nodiscard]] bool isFinished() const { return m_flow.isFinished(); }

    /// One row per band, "title" and "detail", in the order of the bands.
    [[nodiscard]] QAbstractItemModel *legend() { return &m_legend; }
    [[nodiscard]] QString legendCaption() const;

    /// The flow's moves. After the last one nothing moves any more.
    Q_INVOKABLE void advance();
    Q_INVOKABLE void goBack();
    Q_INVOKABLE void skip();

Q_SIGNALS:
    void isPresentedChanged();
    void moved();
    void isFinishedChanged();

private:
    void present();
    void setPresented(bool presented);
    void move(void (OnboardingFlow::*way)());

    std::shared_ptr<OnboardingCompletionStore> m_store;
    OnboardingFlow m_flow;
    QList<OnboardingStepTexts *> m_steps;
    TextRows m_legend;
    QTimer m_delay;
    int m_request = 0; ///< the number of the last wish to present; an older answer counts no more
    bool m_isPresented = false;
};

} // namespace Loadwick
