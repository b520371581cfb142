#include "compare/ColumnPresenter.h"

#include <utility>

#include "base/QtText.h"
#include "text/DateText.h"
#include "text/NumberText.h"

namespace Loadwick {
ColumnPresenter::ColumnPresenter(TextLocale locale, QObject *parent)
    : QObject(parent), m_locale(std::move(locale)), m_bars(barRoles())
{}

void ColumnPresenter::setCompare(ComparePresenter *compare)
{
    if (m_compare == compare)
        return;
    if (m_compare)
        m_compare->disconnect(this);
    m_compare = compare;
    if (!m_compare)
        return;
    m_locale = m_compare->locale();
    connect(m_compare, &ComparePresenter::changed, this, &ColumnPresenter::follow);
    follow();
}

void ColumnPresenter::setNumber(int number)
{
    if (m_number == number)
        return;
    m_number = number;
    follow();
}

void ColumnPresenter::follow()
{
    if (m_compare && m_number >= 0 && m_number < m_compare->columnCount())
        show(m_compare->comparison(), static_cast<std::size_t>(m_number));
}

void ColumnPresenter::show(std::shared_ptr<const Comparison> comparison, std::size_t column)
{
    const auto before = std::exchange(m_comparison, std::move(comparison)); // keeps the bars' names
    m_column = column;
    m_bars.updateRows(shownBars());
    Q_EMIT changed();
}

QString ColumnPresenter::name() const
{
    return m_comparison ? qtText(scan().repositoryName) : QString();
}

QString ColumnPresenter::path() const
{
    return m_comparison ? qtText(scan().repositoryPath) : QString();
}

QString ColumnPresenter::scanned() const
{
    if (!m_comparison)
        return {};
    return tr("Scanned %1").arg(qtText(dateText(scan().date, DateForm::day, m_locale)));
}

QString ColumnPresenter::total() const
{
    return m_comparison ? qtText(NumberText::grouped(scan().total, m_locale)) : QString();
}

int ColumnPresenter::band() const
{
    return m_comparison ? static_cast<int>(scan().band()) : 0;
}

QString ColumnPresenter::bandText() const
{
    if (!m_comparison)
        return {};
    return qtText(scan().band().title()) + QStringLiteral(" · ") +
           qtText(scan().band().range(m_locale));
}

QString ColumnPresenter::emptyText() const
{
    const bool isEmpty = m_comparison && !m_comparison->bars.hasBars(m_column);
    return isEmpty ? tr("No category estimates") : QString();
}

QString ColumnPresenter::chartName() const
{
    if (!m_comparison)
        return {};
    return tr("%1: tokens by category, on a scale from 0 to %2")
        .arg(name(), qtText(NumberText::grouped(m_comparison->bars.maximumRowTokens(), m_locale)));
}

std::vector<ColumnPresenter::Bar> ColumnPresenter::shownBars() const
{
    const BarGeometry &bars = m_comparison->bars;
    std::vector<Bar> shown(bars.hasBars(m_column) ? bars.rowCount() : 0);
    for (std::size_t row = 0; row < shown.size(); ++row)
        shown[row] = {.category = bars.category(row), .tokens = bars.tokens(m_column, row)};
    return shown;
}

std::vector<ListOf<ColumnPresenter::Bar>::Role> ColumnPresenter::barRoles() const
{
    const auto length = [this](const Bar &bar) {
        return m_comparison->bars.length(bar.tokens.value_or(0));
    };
    const auto spoken = [this](const Bar &bar) {
        return BarText::spoken(qtText(bar.category), bar.tokens, m_locale);
    };
    return {
        {"category", [](const Bar &bar) { return qtText(bar.category); }},
        {"value", [this](const Bar &bar) { return BarText::value(bar.tokens, m_locale); }},
        {"length", length},
        {"isRecorded", [](const Bar &bar) { return bar.tokens.has_value(); }},
        {"spoken", spoken},
    };
}

} // namespace Loadwick

#include "moc_ColumnPresenter.cpp"
