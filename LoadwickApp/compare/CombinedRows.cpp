#include "compare/CombinedRows.h"

#include <utility>

#include "base/QtText.h"
#include "compare/BarText.h"

namespace Loadwick {

CombinedRows::CombinedRows(TextLocale locale, QObject *parent)
    : QAbstractListModel(parent), m_locale(std::move(locale))
{}

void CombinedRows::show(std::shared_ptr<const Comparison> comparison)
{
    beginResetModel();
    m_comparison = std::move(comparison);
    m_lines = GroupedRows(m_comparison->bars.rowCount(), m_comparison->bars.columnCount());
    endResetModel();
}

int CombinedRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lines.lineCount());
}

QVariant CombinedRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const GroupedRows::Line line = m_lines.line(static_cast<std::size_t>(index.row()));
    return line.column ? barData(line.row, *line.column, role) : categoryData(line.row, role);
}

QVariant CombinedRows::categoryData(std::size_t row, int role) const
{
    switch (role) {
    case IsCategory:
        return true;
    case Title:
    case Spoken:
        return qtText(m_comparison->bars.category(row));
    case Place:
    case Value:
        return QString();
    case Column:
        return -1;
    case Length:
        return 0.0;
    case IsRecorded:
        return false;
    default:
        return {};
    }
}

QVariant CombinedRows::barData(std::size_t row, std::size_t column, int role) const
{
    const RecordedScan &scan = m_comparison->columns.at(column);
    const std::optional<std::int64_t> tokens = m_comparison->bars.tokens(column, row);
    switch (role) {
    case IsCategory:
        return false;
    case Title:
        return qtText(scan.repositoryName);
    case Place:
        return qtText(scan.repositoryPath);
    case Column:
        return static_cast<int>(column);
    case Value:
        return BarText::value(tokens, m_locale);
    case Length:
        return m_comparison->bars.length(tokens.value_or(0));
    case IsRecorded:
        return tokens.has_value();
    case Spoken:
        return BarText::spoken(qtText(scan.repositoryName), tokens, m_locale);
    default:
        return {};
    }
}

QHash<int, QByteArray> CombinedRows::roleNames() const
{
    return {{IsCategory, "isCategory"}, {Title, "title"},  {Place, "place"},
            {Column, "column"},         {Value, "value"},  {Length, "length"},
            {IsRecorded, "isRecorded"}, {Spoken, "spoken"}};
}

} // namespace Loadwick

#include "moc_CombinedRows.cpp"
