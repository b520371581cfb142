#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include <QAbstractListModel>
#include <QString>

namespace Loadwick {

/// One row per repository that can be chosen again: "title", "detail" (where it is, or was),
/// "isThere" and "isCurrent".
class RecentRows final : public QAbstractListModel
{
    Q_OBJECT

public:
    struct Row
    {
        QString title;
        QString place; ///< where it is, as text
        std::filesystem::path folder;
        std::optional<bool> isThere = {}; ///< none until it was looked for
        bool isCurrent = false;           ///< the one that is chosen now
    };

    using QAbstractListModel::QAbstractListModel;

    void setRows(std::vector<Row> rows);
    [[nodiscard]] const std::vector<Row> &rows() const noexcept { return m_rows; }

    /// Every row of that folder.
    void setIsThere(const std::filesystem::path &folder, bool isThere);
    /// Its row and no other; none: no row.
    void setCurrent(const std::optional<std::filesystem::path> &folder);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    enum Role
    {
        Title = Qt::UserRole,
        Detail,
        IsThere,
        IsCurrent
    };

    std::vector<Row> m_rows;
};

} // namespace Loadwick
