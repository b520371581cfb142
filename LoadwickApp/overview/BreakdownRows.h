#pragma once

#include <cstdint>
#include <vector>

#include <QAbstractListModel>

#include "report/ScanReport.h"
#include "report/SlabAttributor.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// The rows of the breakdown for a view. A row is put into words when it is asked for: a session
/// may report thousands, and a window shows some thirty of them.
class BreakdownRows final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        NameRole = Qt::UserRole, ///< "name"
        TokensRole,              ///< "tokens": a grouped integer
        ShareRole,               ///< "share": of the total that Claude reported
        SourceRole,              ///< "source": where the figure comes from
        ColorPlaceRole,          ///< "colorPlace": the row's place in the series of colours
        ProvenanceRole,          ///< "provenance": the same as `source`, as an identifier
        SentenceRole             ///< "sentence": all of the row, for assistive technology
    };

    explicit BreakdownRows(TextLocale locale, QObject *parent = nullptr);

    /// The report's rows in its order.
    void show(const ScanReport &report);

    [[nodiscard]] const std::vector<SlabAttribution> &rows() const noexcept { return m_rows; }
    [[nodiscard]] QString name(const SlabAttribution &row) const;
    [[nodiscard]] QString tokens(const SlabAttribution &row) const;
    [[nodiscard]] QString share(const SlabAttribution &row) const;
    [[nodiscard]] QString sentence(const SlabAttribution &row) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    TextLocale m_locale;
    std::vector<SlabAttribution> m_rows;
    std::int64_t m_total = 0;
};

} // namespace Loadwick
