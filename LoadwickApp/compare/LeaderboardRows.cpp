#include "compare/LeaderboardRows.h"

#include <utility>

#include "base/QtText.h"
#include "components/TrendMark.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

QString scanCountText(std::int64_t count)
{
    return (count == 1 ? LeaderboardRows::tr("%1 scan") : LeaderboardRows::tr("%1 scans"))
        .arg(count);
}

TrendMark markOf(const LeaderboardEntry &entry, const TextLocale &locale)
{
    return TrendMark::of(entry.trend(), entry.delta(), locale);
}

} // namespace

LeaderboardRows::LeaderboardRows(TextLocale locale, QObject *parent)
    : QAbstractListModel(parent), m_locale(std::move(locale))
{}

void LeaderboardRows::setEntries(std::vector<LeaderboardEntry> entries)
{
    beginResetModel();
    m_entries = std::move(entries);
    endResetModel();
}

int LeaderboardRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

QVariant LeaderboardRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const LeaderboardEntry &entry = m_entries[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Rank:
        return index.row() + 1;
    case Title:
        return qtText(entry.latest.repositoryName);
    case Detail:
        return scanCountText(entry.scanCount);
    case Value:
        return qtText(NumberText::grouped(entry.latest.total, m_locale));
    case Band:
        return static_cast<int>(entry.latest.band());
    case BandTitle:
        return qtText(entry.latest.band().title());
    case TrendKind:
        return static_cast<int>(markOf(entry, m_locale).kind);
    case TrendTitle:
        return markOf(entry, m_locale).title;
    case TrendSymbol:
        return markOf(entry, m_locale).symbol;
    case Place:
        return qtText(entry.latest.repositoryPath);
    default:
        return {};
    }
}

QHash<int, QByteArray> LeaderboardRows::roleNames() const
{
    return {{Rank, "rank"},
            {Title, "title"},
            {Detail, "detail"},
            {Value, "value"},
            {Band, "band"},
            {BandTitle, "bandTitle"},
            {TrendKind, "trendKind"},
            {TrendTitle, "trendTitle"},
            {TrendSymbol, "trendSymbol"},
            {Place, "place"}};
}

} // namespace Loadwick

#include "moc_LeaderboardRows.cpp"
