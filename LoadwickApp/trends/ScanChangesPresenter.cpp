#include "trends/ScanChangesPresenter.h"

#include <algorithm>
#include <utility>

#include "base/QtText.h"
#include "base/TokenText.h"
#include "text/DateText.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

using Moment = ScanChangesPresenter::Moment;

/// The repository's scans by date. Scans of one second keep the order of the history, as the points
/// of the chart do.
std::vector<Moment> momentsOf(const std::vector<RecordedScan> &history, const std::string &path)
{
    std::vector<Moment> moments;
    for (std::size_t position = 0; position < history.size(); ++position) {
        const RecordedScan &scan = history[position];
        if (scan.repositoryPath == path)
            moments.push_back({scan.id, scan.date, scan.total, position});
    }
    std::stable_sort(moments.begin(), moments.end(), [](const Moment &left, const Moment &right) {
        return left.date < right.date;
    });
    return moments;
}

bool areSameScans(const std::vector<Moment> &left, const std::vector<Moment> &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const Moment &one, const Moment &other) { return one.id == other.id; });
}

/// `count` moments from `first` on, the newest first.
std::vector<Moment> newestFirst(const std::vector<Moment> &moments, std::size_t first,
                                std::size_t count)
{
    const auto start = moments.begin() + static_cast<std::ptrdiff_t>(first);
    std::vector<Moment> reversed(start, start + static_cast<std::ptrdiff_t>(count));
    std::reverse(reversed.begin(), reversed.end());
    return reversed;
}

std::vector<ListOf<Moment>::Role> momentRoles(const TextLocale &locale)
{
    return {
        {"title",
         [locale](const Moment &moment) {
             return qtText(dateText(moment.date, DateForm::dayAndTime, locale));
         }},
        {"detail",
         [locale](const Moment &moment) { return TokenText::count(moment.total, locale); }},
    };
}

} // namespace

ScanChangesPresenter::ScanChangesPresenter(ScanModel &model, TextLocale locale)
    : m_model(model),
      m_locale(std::move(locale)),
      m_rows(changedRowRoles(m_locale)),
      m_earlierScans(momentRoles(m_locale)),
      m_laterScans(momentRoles(m_locale))
{}

void ScanChangesPresenter::show(const std::optional<std::string> &repositoryPath)
{
    std::vector<Moment> moments = repositoryPath
                                      ? momentsOf(m_model.history().get(), *repositoryPath)
                                      : std::vector<Moment>();
    const bool isKept = areSameScans(moments, m_moments);
    m_moments = std::move(moments);
    if (!isKept)
        chooseNewest();
}

void ScanChangesPresenter::setShown(bool isShown)
{
    m_isShown = isShown;
    compare();
}

QString ScanChangesPresenter::unchanged() const
{
    if (!m_comparison || m_comparison->unchangedCount == 0)
        return {};
    const auto count = static_cast<std::int64_t>(m_comparison->unchangedCount);
    return (count == 1 ? tr("%1 category unchanged, %2") : tr("%1 categories unchanged, %2"))
        .arg(qtText(NumberText::grouped(count, m_locale)),
             TokenText::count(m_comparison->unchangedTokens, m_locale));
}

QString ScanChangesPresenter::whyOnlyTotals() const
{
    if (!m_comparison || m_comparison->hasCategories)
        return {};
    const bool lacksEarlier = scanOf(m_earlier).categories.empty();
    const bool lacksLater = scanOf(m_later).categories.empty();
    if (lacksEarlier && lacksLater)
        return tr("Neither scan has category estimates, so only the totals can be compared.");
    return lacksEarlier
               ? tr("The earlier scan has no category estimates, so only the totals can be "
                    "compared.")
               : tr("The later scan has no category estimates, so only the totals can be "
                    "compared.");
}

QString ScanChangesPresenter::widestFigure() const
{
    if (!m_comparison)
        return {};
    std::int64_t largest = 0;
    const auto note = [&largest](std::int64_t tokens) {
        largest = std::max(largest, tokens < 0 ? -(tokens + 1) : tokens);
    };
    note(m_comparison->totalBefore);
    note(m_comparison->totalAfter);
    note(m_comparison->totalDifference());
    for (const CategoryChange &change : m_comparison->changes) {
        note(change.before.value_or(0));
        note(change.after.value_or(0));
        note(change.difference());
    }
    return qtText(NumberText::groupedChange(largest, m_locale));
}

QString ScanChangesPresenter::earlierDate() const
{
    return hasChanges() ? dateOf(m_moments[m_earlier]) : QString();
}

QString ScanChangesPresenter::laterDate() const
{
    return hasChanges() ? dateOf(m_moments[m_later]) : QString();
}

QString ScanChangesPresenter::sentence() const
{
    return hasChanges() ? tr("%1. %2. %3")
                              .arg(earlierSentence(), laterSentence(),
                                   m_rows.text(0, QStringLiteral("sentence")))
                        : QString();
}

int ScanChangesPresenter::earlierRow() const noexcept
{
    return static_cast<int>(m_later) - 1 - static_cast<int>(m_earlier);
}

int ScanChangesPresenter::laterRow() const noexcept
{
    return static_cast<int>(m_moments.size()) - 1 - static_cast<int>(m_later);
}

int ScanChangesPresenter::earlierPoint() const noexcept
{
    return hasChanges() ? static_cast<int>(m_earlier) : -1;
}

int ScanChangesPresenter::laterPoint() const noexcept
{
    return hasChanges() ? static_cast<int>(m_later) : -1;
}

void ScanChangesPresenter::chooseEarlier(int row)
{
    if (row >= 0 && row < m_earlierScans.count())
        choose(m_later - 1 - static_cast<std::size_t>(row), m_later);
}

void ScanChangesPresenter::chooseLater(int row)
{
    if (row >= 0 && row < m_laterScans.count())
        choosePoint(m_laterScans.count() - row);
}

void ScanChangesPresenter::choosePoint(int point)
{
    const auto chosen = static_cast<std::size_t>(point);
    if (point < 0 || chosen >= m_moments.size() || !hasChanges())
        return;
    if (chosen == 0)
        choose(0, m_later);
    else
        choose(std::min(m_earlier, chosen - 1), chosen);
}

void ScanChangesPresenter::chooseNewest()
{
    const std::size_t count = m_moments.size();
    choose(count < 2 ? 0 : count - 2, count < 2 ? 0 : count - 1);
}

void ScanChangesPresenter::choose(std::size_t earlier, std::size_t later)
{
    m_earlier = earlier;
    m_later = later;
    m_earlierScans.setRows(newestFirst(m_moments, 0, later));
    m_laterScans.setRows(hasChanges() ? newestFirst(m_moments, 1, m_moments.size() - 1)
                                      : std::vector<Moment>());
    Q_EMIT changed();
    compare();
}

void ScanChangesPresenter::compare()
{
    if (!m_isShown && hasChanges())
        return;
    const auto wanted =
        hasChanges() ? std::optional(std::pair(m_moments[m_earlier].id, m_moments[m_later].id))
                     : std::nullopt;
    if (wanted == m_compared)
        return;
    m_compared = wanted;
    m_comparison = wanted ? std::make_shared<const ScanComparison>(
                                ScanComparison::between(scanOf(m_earlier), scanOf(m_later)))
                          : nullptr;
    m_rows.setRows(ChangedRowsOf(m_comparison));
    Q_EMIT compared();
}

QString ScanChangesPresenter::dateOf(const Moment &moment) const
{
    return qtText(dateText(moment.date, DateForm::dayAndTime, m_locale));
}

const RecordedScan &ScanChangesPresenter::scanOf(std::size_t index) const
{
    return m_model.history().get()[m_moments[index].position];
}

} // namespace Loadwick

#include "moc_ScanChangesPresenter.cpp"
