#include "shell/RecentRows.h"

#include <utility>

namespace Loadwick {
namespace {

QString detailOf(const RecentRows::Row &row)
{
    const bool isGone = !row.isThere.value_or(true);
    return isGone ? RecentRows::tr("Folder not found: %1").arg(row.place) : row.place;
}

} // namespace

void RecentRows::setRows(std::vector<Row> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

void RecentRows::setIsThere(const std::filesystem::path &folder, bool isThere)
{
    for (std::size_t place = 0; place < m_rows.size(); ++place) {
        if (m_rows[place].folder != folder)
            continue;
        m_rows[place].isThere = isThere;
        const QModelIndex changed = index(static_cast<int>(place));
        Q_EMIT dataChanged(changed, changed, {IsThere, Detail});
    }
}

void RecentRows::setCurrent(const std::optional<std::filesystem::path> &folder)
{
    for (Row &row : m_rows)
        row.isCurrent = row.folder == folder;
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {IsCurrent});
}

int RecentRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant RecentRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Title:
        return row.title;
    case Detail:
        return detailOf(row);
    case IsThere:
        return row.isThere.value_or(false);
    case IsCurrent:
        return row.isCurrent;
    default:
        return {};
    }
}

QHash<int, QByteArray> RecentRows::roleNames() const
{
    return {{Title, "title"}, {Detail, "detail"}, {IsThere, "isThere"}, {IsCurrent, "isCurrent"}};
}

} // namespace Loadwick

#include "moc_RecentRows.cpp"
