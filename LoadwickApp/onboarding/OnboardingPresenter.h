#pragma once

#include <chrono>
#include <memory>

#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include "base/ListOf.h"
#include "model/OnboardingFlow.h"
#include "model/TaskDispatcher.h"

namespace Loadwick {

/// One step of the walk-through as the sheet shows it. Immutable.
class OnboardingStepTexts final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the walk-through's presenter.")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString body READ body CONSTANT)
    Q_PROPERTY(QString platformNote READ platformNote CONSTANT)
    Q_PROPERTY(QString footnote READ footnote CONSTANT)
    Q_PROPERTY(QString primaryTitle READ primaryTitle CONSTANT)
    Q_PROPERTY(Illustration illustration READ illustration CONSTANT)
    Q_PROPERTY(bool showsBack READ showsBack CONSTANT)
    Q_PROPERTY(bool showsSkip READ showsSkip CONSTANT)

public:
    enum class Illustration
    {
        MeasureIcon = OnboardingIllustration::measureIcon,
        ToolbarPointer = OnboardingIllustration::toolbarPointer,
        ScanSpinner = OnboardingIllustration::scanSpinner,
        BandLegend = OnboardingIllustration::bandLegend
    };
    Q_ENUM(Illustration)

    explicit OnboardingStepTexts(const OnboardingStep &step, QObject *parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString body() const;
    /// Empty where the step has none.
    [[nodiscard]] QString platformNote() const;
    [[nodiscard]] QString footnote() const;
    [[nodiscard]] QString primaryTitle() const;
    [[nodiscard]] Illustration illustration() const;
    [[nodiscard]] bool showsBack() const { return m_step.showsBack(); }
    [[nodiscard]] bool showsSkip() const { return m_step.showsSkip(); }

private:
    OnboardingStep m_step;
};

/// The walk-through of the first launch: whether its sheet is open, and at which step. Belongs to
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
    Q_PROPERTY(QString stepWords READ stepWords NOTIFY moved)
    Q_PROPERTY(bool isFinished READ isFinished NOTIFY isFinishedChanged)
    Q_PROPERTY(Loadwick::RowList *legend READ legend CONSTANT)
    Q_PROPERTY(QString legendCaption READ legendCaption CONSTANT)

public:
    /// The delay from the window's appearance to the sheet's.
    static constexpr std::chrono::milliseconds delay{300};

    explicit OnboardingPresenter(std::shared_ptr<OnboardingCompletionStore> store);

    /// Asks the store in the background whether the walk-through was completed. If not, the sheet
    /// opens after the delay, at the first step, unless it was cancelled meanwhile; after another
    /// delay if a dialog is open.
    void presentOnboardingIfFirstLaunch(const std::shared_ptr<TaskDispatcher> &dispatcher);

    /// Cancels a sheet that has not opened yet; an open one stays.
    void cancel();

    [[nodiscard]] bool isPresented() const noexcept { return m_isPresented; }
    /// Call when the sheet has faded out.
    Q_INVOKABLE void dismiss();

    [[nodiscard]] int stepCount() const { return OnboardingFlow::stepCount(); }
    /// Owned by this presenter; `index` is less than `stepCount`.
    Q_INVOKABLE Loadwick::OnboardingStepTexts *step(int index) const;
    [[nodiscard]] int currentIndex() const { return m_flow.currentIndex(); }
    [[nodiscard]] OnboardingStepTexts *currentStep() const;
    /// "Step 1 of 4".
    [[nodiscard]] QString position() const;
    /// The title and the words of the current step, for a screen reader.
    [[nodiscard]] QString stepWords() const;
    [[nodiscard]] bool isFinished() const { return m_flow.isFinished(); }

    /// One row per band, "title" and "detail", in the order of the bands.
    [[nodiscard]] RowList *legend() { return &m_legend; }
    [[nodiscard]] QString legendCaption() const;

    /// The flow's moves; no-ops once it has finished.
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
    ListOf<OnboardingLegendEntry> m_legend;
    QTimer m_delay;
    int m_request = 0; ///< the number of the latest request; answers to older ones are dropped
    bool m_isPresented = false;
};

} // namespace Loadwick
