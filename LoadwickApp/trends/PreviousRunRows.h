#pragma once

#include <vector>

#include <QAbstractListModel>

#include "history/RecordedScan.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// Recorded scans as rows: "title" (the repository), "detail" (when), "value" (tokens),
/// "valueCaption", "band" (its number) and "place": the repository's path where its name stands for
/// more than one, else empty. Texts are made when they are asked for.
class PreviousRunRows final : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit PreviousRunRows(TextLocale locale) : m_locale(std::move(locale)) {}

    void setScans(std::vector<RecordedScan> scans);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    enum Role
    {
        title = Qt::UserRole,
        detail,
        value,
        valueCaption,
        band,
        place
    };
    [[nodiscard]] QString placeOf(const RecordedScan &scan) const;

    TextLocale m_locale;
    std::vector<RecordedScan> m_scans;
};

} // namespace Loadwick
