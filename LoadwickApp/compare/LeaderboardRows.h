#pragma once

#include <vector>

#include <QAbstractListModel>

#include "history/ScanHistory.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// One row per repository, ranked from 1 in the order it is given. Texts are made when a row is
/// shown.
class LeaderboardRows final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        Rank = Qt::UserRole,
        Title,     ///< the repository's name
        Detail,    ///< how many scans of it are recorded
        Value,     ///< its latest total
        Band,      ///< of that total, as an index of the theme's bands
        BandTitle, ///< the same in a word
        TrendKind, ///< with the next two, what a TrendPill takes
        TrendTitle,
        TrendSymbol,
        Place ///< the path that tells apart what has one name
    };

    explicit LeaderboardRows(TextLocale locale, QObject *parent = nullptr);

    void setEntries(std::vector<LeaderboardEntry> entries);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    TextLocale m_locale;
    std::vector<LeaderboardEntry> m_entries;
};

} // namespace Loadwick
