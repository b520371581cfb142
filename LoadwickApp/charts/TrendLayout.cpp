#include "charts/TrendLayout.h"

#include <algorithm>

namespace Loadwick {
namespace {

constexpr double axisGap = 8;       // between the plot and its labels
constexpr double readoutMargin = 2; // above and below the words
constexpr double readoutPadding = 8;

} // namespace

TrendLayout::TrendLayout(const Needs &needs) noexcept : m_needs(needs)
{
    const double left = needs.widestTotal + axisGap;
    const double right = needs.width - needs.widestName - axisGap;
    const double top = needs.lineHeight / 2; // half of the top label is above its line
    const double bottom = needs.height - needs.lineHeight - axisGap;
    m_frame = {.x = left,
               .y = top,
               .width = std::max(right - left, 0.0),
               .height = std::max(bottom - top, 0.0)};
    const double inset = std::min(needs.pointRadius + axisGap / 2, m_frame.width / 2);
    m_plot = {.x = m_frame.x + inset,
              .y = m_frame.y,
              .width = m_frame.width - 2 * inset,
              .height = m_frame.height};
}

double TrendLayout::xOf(double share) const noexcept
{
    return m_plot.x + share * m_plot.width;
}

double TrendLayout::yOf(double share) const noexcept
{
    return m_plot.bottom() - share * m_plot.height;
}

LinePoint TrendLayout::pointAt(double x, double y) const noexcept
{
    return {.x = m_plot.width > 0 ? (x - m_plot.x) / m_plot.width : 0,
            .y = m_plot.height > 0 ? (m_plot.bottom() - y) / m_plot.height : 0};
}

TrendLayout::NameHeights TrendLayout::nameHeights(double lowerShare,
                                                  double upperShare) const noexcept
{
    const double half = m_needs.lineHeight / 2;
    const double lowest = m_frame.bottom() - half;
    const double highest = m_frame.y + half;
    const double lower = std::max(std::min(yOf(lowerShare), lowest), highest + m_needs.lineHeight);
    const double upper = std::max(std::min(yOf(upperShare), lower - m_needs.lineHeight), highest);
    return {.lower = lower, .upper = upper};
}

PlotRect TrendLayout::readout(double share, double wordsWidth) const noexcept
{
    const double width = std::min(wordsWidth + 2 * readoutPadding, m_frame.width);
    const double centred = xOf(share) - width / 2;
    return {.x = std::max(std::min(centred, m_frame.right() - width), m_frame.x),
            .y = m_frame.y,
            .width = width,
            .height = m_needs.lineHeight + 2 * readoutMargin};
}

double TrendLayout::dateLabelsTop() const noexcept
{
    return m_frame.bottom() + axisGap;
}

} // namespace Loadwick
