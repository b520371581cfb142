#include "model/OnboardingFlow.h"

#include <utility>

#include "text/Fatal.h"
#include "text/OnLinux.h"

namespace Loadwick {

std::string_view OnboardingIllustration::rawValue() const noexcept
{
    switch (m_value) {
    case measureIcon:
        return "measureIcon";
    case toolbarPointer:
        return "toolbarPointer";
    case scanSpinner:
        return "scanSpinner";
    case bandLegend:
        break;
    }
    return "bandLegend";
}

std::optional<std::string> OnboardingStep::platformNote() const
{
    if (illustration != OnboardingIllustration::toolbarPointer)
        return std::nullopt;
    return onLinux("On Linux that is any folder on this computer that your user may read.");
}

OnboardingCompletion::OnboardingCompletion(std::shared_ptr<OnboardingCompletionStore> store)
    : m_store(std::move(store))
{
    if (!m_store)
        fatalError("The walk-through needs a store for its completion.");
}

const std::array<OnboardingStep, OnboardingStep::lastIndex + 1> OnboardingFlow::steps{{
    {.index = 0,
     .title = "See what Claude Code loads before it reads a single message",
     .body = "Every Claude Code session spends some of its context window on startup files — "
             "CLAUDE.md, AGENTS.md, and similar instructions — before you type anything. Loadwick "
             "runs one real scan of a repository and shows you exactly how many tokens that costs, "
             "so you can tell whether your setup is lean or bloated.",
     .footnote = {},
     .primaryTitle = "Next",
     .illustration = OnboardingIllustration::measureIcon},
    {.index = 1,
     .title = "Point it at a local git repository",
     .body = "Pick any folder on this Mac that's a git repository — your own project works well. "
             "Loadwick only reads it locally to run the scan; nothing is uploaded.",
     .footnote = "Look for the folder icon in the top-right toolbar.",
     .primaryTitle = "Next",
     .illustration = OnboardingIllustration::toolbarPointer},
    {.index = 2,
     .title = "Run one real scan",
     .body = "Scanning launches one real Claude Code session against the repository and asks it to "
             "report its own startup context — that's why it needs Claude Code installed and "
             "signed in, and takes about 1–2 minutes. You'll see a spinner while it runs; nothing "
             "else in the app is blocked.",
     .footnote = "Requires the Claude Code CLI installed and signed in.",
     .primaryTitle = "Next",
     .illustration = OnboardingIllustration::scanSpinner},
    {.index = 3,
     .title = "One number matters most — the rest is a map",
     .body = "The total token count is measured directly by Claude and is authoritative. The "
             "category and file breakdown underneath is Loadwick's own local estimate, to help you "
             "see where the tokens likely came from.",
     .footnote = "Total tokens — from Claude, exact. Category breakdown — Loadwick's estimate.",
     .primaryTitle = "Got it",
     .illustration = OnboardingIllustration::bandLegend},
}};

const std::array<OnboardingLegendEntry, 3> OnboardingFlow::legend{{
    {.band = OpinionBand::lean, .detail = "fine as-is"},
    {.band = OpinionBand::heavy, .detail = "worth trimming"},
    {.band = OpinionBand::excessive, .detail = "actively hurting the session"},
}};

OnboardingFlow::OnboardingFlow(OnboardingCompletion completion)
    : m_completion(std::move(completion))
{}

const OnboardingStep &OnboardingFlow::currentStep() const noexcept
{
    return steps[static_cast<std::size_t>(m_currentIndex)];
}

void OnboardingFlow::advance()
{
    if (m_isFinished)
        return;
    if (currentStep().isLast()) {
        finish();
        return;
    }
    m_direction = Direction::forward;
    ++m_currentIndex;
}

void OnboardingFlow::goBack()
{
    if (m_isFinished || currentStep().isFirst())
        return;
    m_direction = Direction::backward;
    --m_currentIndex;
}

void OnboardingFlow::skip()
{
    finish();
}

void OnboardingFlow::finish()
{
    m_completion.markComplete();
    m_isFinished = true;
}

} // namespace Loadwick
