#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include "overview/ListedFile.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// A list of instruction files for the screen. What a row says is written when it is asked for, so
/// that ten thousand files cost nothing before they are looked at.
class InstructionFileRows : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the presenters.")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role
    {
        Path = Qt::UserRole,
        Name,       ///< the last part of the path
        Size,       ///< bytes on disk, or that the file could not be read
        Tokens,     ///< "1,234"; empty for a file without figures
        Amount,     ///< "1,234 tokens"; empty for a file without figures
        Share,      ///< "12.3% of total"; empty for a file without figures
        Figures,    ///< tokens and share in one line
        Weight,     ///< tokens as a double
        IsReadable, ///< whether there are figures
        Words       ///< the whole row, for a screen reader
    };

    /// What all the rows of one report have in common.
    struct Context
    {
        std::shared_ptr<const InstructionFileSet> files; ///< keeps what the rows point to
        std::int64_t total = 0;                          ///< tokens, authoritative
        TextLocale locale = {};
    };

    using QAbstractListModel::QAbstractListModel;

    void show(Context context, std::vector<ListedFile> rows);

    [[nodiscard]] int count() const noexcept { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] const std::vector<ListedFile> &rows() const noexcept { return m_rows; }

    /// What a row says; empty where there is none.
    Q_INVOKABLE QString path(int row) const { return text(row, Path); }
    Q_INVOKABLE QString figures(int row) const { return text(row, Figures); }
    Q_INVOKABLE QString words(int row) const { return text(row, Words); }
    /// Puts the row's path on the clipboard.
    Q_INVOKABLE void copyPath(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    [[nodiscard]] QString text(int row, Role role) const;
    [[nodiscard]] QVariant readableData(const InstructionFileEstimate &file, int role) const;
    [[nodiscard]] QString grouped(std::int64_t number) const;

    Context m_context;
    std::vector<ListedFile> m_rows;
};

} // namespace Loadwick
