#include "base/TextRows.h"

#include <utility>

namespace Loadwick {

TextRows::TextRows(QByteArrayList names, QObject *parent)
    : QAbstractListModel(parent), m_names(std::move(names))
{}

void TextRows::setRows(const QList<QStringList> &rows)
{
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

int TextRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant TextRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QStringList &row = m_rows.at(index.row());
    const qsizetype column = role - Qt::UserRole;
    return column >= 0 && column < row.size() ? QVariant(row.at(column)) : QVariant();
}

QHash<int, QByteArray> TextRows::roleNames() const
{
    QHash<int, QByteArray> names;
    for (qsizetype column = 0; column < m_names.size(); ++column)
        names.insert(Qt::UserRole + static_cast<int>(column), m_names.at(column));
    return names;
}

} // namespace Loadwick

#include "moc_TextRows.cpp"
