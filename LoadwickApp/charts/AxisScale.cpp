#include "charts/AxisScale.h"

#include <algorithm>
#include <limits>
#include <set>

#include "charts/DateStep.h"
#include "text/DateText.h"

namespace Loadwick {
namespace {

using std::chrono::sys_seconds;

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();

/// The smallest step of the series 1, 2, 5, 10, 20, 50 … that is at least `least`; the largest
/// integer if no such step fits.
std::int64_t niceStep(std::int64_t least) noexcept
{
    std::int64_t power = 1;
    for (;;) {
        for (const std::int64_t factor : {1, 2, 5}) {
            if (power > largest / factor)
                return largest;
            if (power * factor >= least)
                return power * factor;
        }
        if (power > largest / 10)
            return largest;
        power *= 10;
    }
}

/// Moments of one step with their labels; of two equal labels the first is kept.
std::vector<DateTick> labelled(const std::vector<sys_seconds> &moments, const DateStep &step,
                               const TextLocale &locale)
{
    const bool isOfOneDay = moments.empty() || dateText(moments.front(), DateForm::day, locale) ==
                                                   dateText(moments.back(), DateForm::day, locale);
    std::set<std::string> known;
    std::vector<DateTick> ticks;
    for (const sys_seconds moment : moments) {
        std::string label = step.label(moment, !isOfOneDay, locale);
        if (known.insert(label).second)
            ticks.push_back({.moment = moment, .label = std::move(label)});
    }
    return ticks;
}

} // namespace

AxisScale::AxisScale(std::int64_t upperBound, int mostIntervals) noexcept
    : m_upperBound(std::max<std::int64_t>(upperBound, 1))
{
    const std::int64_t intervals = std::max(mostIntervals, 1);
    m_step = niceStep(m_upperBound / intervals + (m_upperBound % intervals == 0 ? 0 : 1));
}

std::vector<std::int64_t> AxisScale::ticks() const
{
    std::vector<std::int64_t> ticks;
    for (std::int64_t count = 0; count <= m_upperBound / m_step; ++count)
        ticks.push_back(count * m_step);
    return ticks;
}

double AxisScale::position(std::int64_t value) const noexcept
{
    return std::clamp(static_cast<double>(value) / static_cast<double>(m_upperBound), 0.0, 1.0);
}

std::vector<DateTick> DateAxisScale::ticks(int mostTicks, const TextLocale &locale) const
{
    if (m_first == m_last)
        return {{.moment = m_first, .label = dateText(m_first, DateForm::dayAndTime, locale)}};
    for (const DateStep &step : DateStep::all()) {
        // A step that is far too short would make far too many moments.
        if ((m_last - m_first) / step.length() > mostTicks + 1)
            continue;
        const auto moments = step.moments(m_first, m_last);
        if (static_cast<int>(moments.size()) <= mostTicks)
            return labelled(moments, step, locale);
    }
    return {};
}

std::vector<DateTick>
DateAxisScale::fittingTicks(double width, double gap, const TextLocale &locale,
                            const std::function<double(std::string_view)> &measure) const
{
    const auto fit = [&](const std::vector<DateTick> &ticks) {
        double end = -gap;
        for (const DateTick &tick : ticks) {
            const double labelWidth = measure(tick.label);
            const double start = labelStart(tick.moment, labelWidth, width);
            if (start < end + gap || labelWidth > width)
                return false;
            end = start + labelWidth;
        }
        return true;
    };
    constexpr double narrowestLabel = 20;
    for (int most = std::clamp(static_cast<int>(width / (narrowestLabel + gap)), 1, 12); most > 0;
         --most) {
        if (auto found = ticks(most, locale); fit(found))
            return found;
    }
    return {};
}

double DateAxisScale::position(sys_seconds moment) const noexcept
{
    if (m_first == m_last)
        return 0.5;
    const double share = static_cast<double>((moment - m_first).count()) /
                         static_cast<double>((m_last - m_first).count());
    return std::clamp(share, 0.0, 1.0);
}

double DateAxisScale::labelStart(sys_seconds moment, double labelWidth, double width) const noexcept
{
    const double centred = position(moment) * width - labelWidth / 2;
    return std::max(0.0, std::min(centred, width - labelWidth));
}

} // namespace Loadwick
