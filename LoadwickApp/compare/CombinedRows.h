#pragma once

#include <memory>

#include <QAbstractListModel>

#include "charts/BarGeometry.h"
#include "compare/Comparison.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// The lines of the chart that puts the categories of all repositories on one axis: a category's
/// name, below it one bar for each repository. Texts are made when a line is shown.
class CombinedRows final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        IsCategory = Qt::UserRole, ///< a category's name, without a bar
        Title,                     ///< of the category or the repository
        Place,                     ///< the repository's path, which tells apart what has one name
        Column,                    ///< the repository's place among all, -1 for a category
        Value,                     ///< tokens, or a dash where the scan lacks the category
        Length,                    ///< of the bar, 0 to 1
        IsRecorded,                ///< whether the scan names the category
        Spoken                     ///< the whole line in words
    };

    explicit CombinedRows(TextLocale locale, QObject *parent = nullptr);

    void show(std::shared_ptr<const Comparison> comparison);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    [[nodiscard]] QVariant categoryData(std::size_t row, int role) const;
    [[nodiscard]] QVariant barData(std::size_t row, std::size_t column, int role) const;

    TextLocale m_locale;
    std::shared_ptr<const Comparison> m_comparison;
    GroupedRows m_lines;
};

} // namespace Loadwick
