#include "compare/ColumnPresenter.h"

#include <utility>

#include "compare/BarText.h"
#include "report/DateText.h"
#include "report/NumberText.h"
#include "shell/QtText.h"

namespace Loadwick {

ColumnPresenter::ColumnPresenter(TextLocale locale, QObject *parent)
    : QAbstractListModel(parent), m_locale(std::move(locale))
{}

void ColumnPresenter::show(std::shared_ptr<const Comparison> comparison, std::size_t column)
{
    beginResetModel();
    m_comparison = std::move(comparison);
    m_column = column;
    endResetModel();
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
    return tr("Scanned %1").arg(qtText(DateText::day(scan().date, m_locale)));
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

// A scan without categories has no bars to list, although the axis has rows.
int ColumnPresenter::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid() || !m_comparison || !m_comparison->bars.hasBars(m_column))
        return 0;
    return static_cast<int>(m_comparison->bars.rowCount());
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
