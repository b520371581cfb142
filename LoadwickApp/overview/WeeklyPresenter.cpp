#include "overview/WeeklyPresenter.h"

#include <chrono>
#include <exception>

#include "base/QtTaskDispatcher.h"
#include "base/QtText.h"
#include "history/WeeklyKPIReader.h"
#include "process/BoundedCall.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

std::optional<WeeklyKPILine> readInTime(const std::filesystem::path &log)
{
    constexpr std::chrono::seconds limit(30);
    try {
        return callWithin(limit, [log] { return WeeklyKPIReader::read(log); })
            .value_or(std::nullopt);
    } catch (const std::exception &) {
        return std::nullopt; // Out of memory or threads: the card is omitted.
    }
}

} // namespace

void WeeklyPresenter::load(const std::filesystem::path &log,
                           const std::shared_ptr<TaskDispatcher> &dispatcher)
{
    const auto showLine = [this](const std::optional<WeeklyKPILine> &line) { show(line); };
    const auto readLine = [log] { return readInTime(log); };
    if (!inBackground(this, dispatcher, readLine, showLine))
        show(std::nullopt);
}

void WeeklyPresenter::show(const std::optional<WeeklyKPILine> &line)
{
    m_hasLine = line.has_value();
    m_median = m_hasLine ? figure(line->medianTokensPerSession, line->medianDelta()) : Figure();
    m_tokensPerPR = m_hasLine ? figure(line->tokensPerPR, line->tokensPerPRDelta()) : Figure();
    m_window.clear();
    m_recorded.clear();
    if (m_hasLine) {
        m_window = tr("Window: %1 – %2").arg(qtText(line->windowStart), qtText(line->windowEnd));
        m_recorded = tr("Recorded: %1").arg(qtText(line->timestamp));
    }
    Q_EMIT changed();
}

QString WeeklyPresenter::targets() const
{
    return tr("Targets: %1").arg(qtText(WeeklyKPIReader::targetsSource));
}

WeeklyPresenter::Figure WeeklyPresenter::figure(std::int64_t tokens, std::int64_t delta) const
{
    return {.value = qtText(NumberText::grouped(tokens, m_locale)),
            .caption =
                tr("%1 versus target").arg(qtText(NumberText::groupedChange(delta, m_locale)))};
}

} // namespace Loadwick

#include "moc_WeeklyPresenter.cpp"
