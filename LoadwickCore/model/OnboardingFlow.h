#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "report/OpinionBand.h"
#include "text/NamedValue.h"

namespace Loadwick {

/// Which picture a step of the walk-through shows.
class OnboardingIllustration
{
public:
    enum Value
    {
        measureIcon,
        toolbarPointer,
        scanSpinner,
        bandLegend
    };
    static constexpr std::array all{measureIcon, toolbarPointer, scanSpinner, bandLegend};

    constexpr OnboardingIllustration(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    /// The case's name, as in identifiers.
    [[nodiscard]] std::string_view rawValue() const noexcept;
    [[nodiscard]] static std::optional<OnboardingIllustration>
    fromRawValue(std::string_view text) noexcept
    {
        return valueNamed<OnboardingIllustration>(text);
    }

private:
    Value m_value;
};

/// One step of the walk-through.
struct OnboardingStep
{
    int index; ///< 0 to `lastIndex`; the step's identity
    std::string_view title;
    std::string_view body;
    std::optional<std::string_view> footnote;
    std::string_view primaryTitle; ///< on the button that leads forward
    OnboardingIllustration illustration;

    static constexpr int lastIndex = 3;

    /// What holds on this system where the body speaks of another one; else nothing.
    [[nodiscard]] std::optional<std::string> platformNote() const;

    [[nodiscard]] constexpr bool isFirst() const noexcept { return index == 0; }
    [[nodiscard]] constexpr bool isLast() const noexcept { return index == lastIndex; }
    [[nodiscard]] constexpr bool showsBack() const noexcept { return !isFirst(); }
    [[nodiscard]] constexpr bool showsSkip() const noexcept { return !isLast(); }

    friend bool operator==(const OnboardingStep &, const OnboardingStep &) = default;
};

/// One row of the band legend: what falling into a band means for the user.
struct OnboardingLegendEntry
{
    OpinionBand band;
    std::string_view detail;

    [[nodiscard]] std::string_view title() const noexcept { return band.title(); }
    /// The entry's identity.
    [[nodiscard]] std::string_view id() const noexcept { return band.rawValue(); }

    friend bool operator==(const OnboardingLegendEntry &, const OnboardingLegendEntry &) = default;
};

/// Remembers across launches that the user has completed the walk-through.
class OnboardingCompletionStore
{
public:
    OnboardingCompletionStore() = default;
    virtual ~OnboardingCompletionStore() = default;

    OnboardingCompletionStore(const OnboardingCompletionStore &) = delete;
    OnboardingCompletionStore &operator=(const OnboardingCompletionStore &) = delete;

    /// False when nothing was ever stored, or nothing can be read.
    [[nodiscard]] virtual bool onboardingCompleted() const = 0;

    /// A failed write is ignored.
    virtual void setOnboardingCompleted(bool completed) = 0;
};

/// Whether the walk-through was ever completed. Asks the store at each call.
class OnboardingCompletion
{
public:
    /// A null store ends the program.
    explicit OnboardingCompletion(std::shared_ptr<OnboardingCompletionStore> store);

    [[nodiscard]] bool isComplete() const { return m_store->onboardingCompleted(); }
    [[nodiscard]] bool shouldPresent() const { return !isComplete(); }
    void markComplete() { m_store->setOnboardingCompleted(true); }

private:
    std::shared_ptr<OnboardingCompletionStore> m_store;
};

/// The walk-through of the first launch: its position, the direction of its last move, and whether
/// it is finished. Once finished it does not move.
class OnboardingFlow
{
public:
    enum class Direction
    {
        forward,
        backward
    };

    static const std::array<OnboardingStep, OnboardingStep::lastIndex + 1> steps;
    static const std::array<OnboardingLegendEntry, 3> legend;

    /// At the first step.
    explicit OnboardingFlow(OnboardingCompletion completion);

    [[nodiscard]] int currentIndex() const noexcept { return m_currentIndex; }
    [[nodiscard]] const OnboardingStep &currentStep() const noexcept;
    [[nodiscard]] static constexpr int stepCount() noexcept
    {
        return OnboardingStep::lastIndex + 1;
    }

    /// The direction of the last move; forward before the first one.
    [[nodiscard]] Direction direction() const noexcept { return m_direction; }
    [[nodiscard]] bool isFinished() const noexcept { return m_isFinished; }
    [[nodiscard]] bool shouldPresent() const { return m_completion.shouldPresent(); }

    /// Goes to the next step; finishes from the last one.
    void advance();
    /// Goes to the previous step; does nothing on the first.
    void goBack();

    /// Both store the completion and keep the position: skipping counts as completing.
    void skip();
    void finish();

private:
    OnboardingCompletion m_completion;
    int m_currentIndex = 0;
    Direction m_direction = Direction::forward;
    bool m_isFinished = false;
};

} // namespace Loadwick
