#include "compare/ColumnPresenter.h"

#include <utility>

#include "base/QtText.h"
#include "compare/BarText.h"
#include "text/DateText.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

// A scan without categories has no bars to list, although the axis has rows.
int rowCountOf(const Comparison &comparison, std::size_t column)
{
    return comparison.bars.hasBars(column) ? static_cast<int>(comparison.bars.rowCount()) : 0;
}

} // namespace

ColumnPresenter::ColumnPresenter(TextLocale locale, QObject *parent)
    : QAbstractListModel(parent), m_locale(std::move(locale))
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
    const bool keepsRows = rowCount() == rowCountOf(*comparison, column);
    if (!keepsRows)
        beginResetModel();
    m_comparison = std::move(comparison);
    m_column = column;
    if (!keepsRows)
        endResetModel();
    else if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    Q_EMIT changed();
}

QString ColumnPresenter::name() const
{
    return m_comparison ? qtText(scan().repositoryName) : QString();
}

QString ColumnPresenter::place() const
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

int ColumnPresenter::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_comparison ? 0 : rowCountOf(*m_comparison, m_column);
}

QVariant ColumnPresenter::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const BarGeometry &bars = m_comparison->bars;
    const auto row = static_cast<std::size_t>(index.row());
    const std::optional<std::int64_t> tokens = bars.tokens(m_column, row);
    switch (role) {
    case Category:
        return qtText(bars.category(row));
    case Value:
        return BarText::value(tokens, m_locale);
    case Length:
        return bars.length(tokens.value_or(0));
    case IsRecorded:
        return tokens.has_value();
    case Spoken:
        return BarText::spoken(qtText(bars.category(row)), tokens, m_locale);
    default:
        return {};
    }
}

QHash<int, QByteArray> ColumnPresenter::roleNames() const
{
    return {{Category, "category"},
            {Value, "value"},
            {Length, "length"},
            {IsRecorded, "isRecorded"},
            {Spoken, "spoken"}};
}

} // namespace Loadwick

#include "moc_ColumnPresenter.cpp"
