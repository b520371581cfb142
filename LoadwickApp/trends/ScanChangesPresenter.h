#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "base/ListOf.h"
#include "model/ScanModel.h"
#include "text/TextLocale.h"
#include "text/Uuid.h"
#include "trends/ChangedRows.h"

namespace Loadwick {

/// What changed between two recorded scans of one repository: the newest and the one before it, or
/// the two that were chosen. The model outlives it.
class ScanChangesPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the page's presenter.")
    Q_PROPERTY(bool hasChanges READ hasChanges NOTIFY changed)
    Q_PROPERTY(bool isShown READ isShown WRITE setShown)
    Q_PROPERTY(Loadwick::RowList *rows READ rows CONSTANT)
    Q_PROPERTY(QString unchanged READ unchanged NOTIFY compared)
    Q_PROPERTY(QString whyOnlyTotals READ whyOnlyTotals NOTIFY compared)
    Q_PROPERTY(QString widestFigure READ widestFigure NOTIFY compared)
    Q_PROPERTY(Loadwick::RowList *earlierScans READ earlierScans CONSTANT)
    Q_PROPERTY(Loadwick::RowList *laterScans READ laterScans CONSTANT)
    Q_PROPERTY(QString earlierDate READ earlierDate NOTIFY changed)
    Q_PROPERTY(QString laterDate READ laterDate NOTIFY changed)
    Q_PROPERTY(QString earlierSentence READ earlierSentence NOTIFY changed)
    Q_PROPERTY(QString laterSentence READ laterSentence NOTIFY changed)
    Q_PROPERTY(QString sentence READ sentence NOTIFY compared)
    Q_PROPERTY(int earlierRow READ earlierRow NOTIFY changed)
    Q_PROPERTY(int laterRow READ laterRow NOTIFY changed)
    Q_PROPERTY(int earlierPoint READ earlierPoint NOTIFY changed)
    Q_PROPERTY(int laterPoint READ laterPoint NOTIFY changed)

public:
    /// One scan of the repository, without its categories.
    struct Moment
    {
        Uuid id;
        std::chrono::sys_seconds date;
        std::int64_t total;   ///< tokens
        std::size_t position; ///< in the history
    };

    ScanChangesPresenter(ScanModel &model, TextLocale locale);

    /// Call it whenever the history or the repository has changed. The choice is kept as long as
    /// the repository's scans are the same.
    void show(const std::optional<std::string> &repositoryPath);

    /// Whether the repository has two scans; otherwise the rest is meaningless.
    [[nodiscard]] bool hasChanges() const noexcept { return m_moments.size() > 1; }

    /// Scans are compared only while they are shown, since that takes time: until then, rows and
    /// words are those of the scans that were shown last.
    [[nodiscard]] bool isShown() const noexcept { return m_isShown; }
    void setShown(bool isShown);

    /// The totals, then the categories that changed; see `changedRowRoles`.
    [[nodiscard]] RowList *rows() { return &m_rows; }
    /// The categories that did not change, in one line; empty if there are none.
    [[nodiscard]] QString unchanged() const;
    /// Why there are no categories; empty if there are.
    [[nodiscard]] QString whyOnlyTotals() const;
    /// No figure of the rows is wider.
    [[nodiscard]] QString widestFigure() const;

    /// The scans that can be chosen for each side, the newest first: "title" (when) and "detail"
    /// (tokens). The earlier scan is always older than the later one.
    [[nodiscard]] RowList *earlierScans() { return &m_earlierScans; }
    [[nodiscard]] RowList *laterScans() { return &m_laterScans; }
    [[nodiscard]] QString earlierDate() const;
    [[nodiscard]] QString laterDate() const;
    /// The dates and which of the two they are, for a screen reader.
    [[nodiscard]] QString earlierSentence() const { return tr("Before: %1").arg(earlierDate()); }
    [[nodiscard]] QString laterSentence() const { return tr("After: %1").arg(laterDate()); }
    /// Both and the difference of the totals, for a screen reader.
    [[nodiscard]] QString sentence() const;
    /// The chosen scans in these lists.
    [[nodiscard]] int earlierRow() const noexcept;
    [[nodiscard]] int laterRow() const noexcept;
    /// The chosen scans among the points of the trend chart, which are in the order of their dates;
    /// -1 without two scans.
    [[nodiscard]] int earlierPoint() const noexcept;
    [[nodiscard]] int laterPoint() const noexcept;

    Q_INVOKABLE void chooseEarlier(int row);
    /// An earlier scan that is no longer the older of the two gives way to the one before `row`.
    Q_INVOKABLE void chooseLater(int row);
    /// Makes a point of the chart the later scan; the oldest, which cannot be, the earlier one.
    Q_INVOKABLE void choosePoint(int point);
    /// Chooses the newest scan and the one before it.
    Q_INVOKABLE void chooseNewest();

Q_SIGNALS:
    void changed();
    void compared();

private:
    void choose(std::size_t earlier, std::size_t later);
    void compare();
    [[nodiscard]] QString dateOf(const Moment &moment) const;
    [[nodiscard]] const RecordedScan &scanOf(std::size_t index) const;

    ScanModel &m_model;
    TextLocale m_locale;
    std::vector<Moment> m_moments; ///< the oldest first
    std::size_t m_earlier = 0;     ///< among these
    std::size_t m_later = 0;
    bool m_isShown = false;
    std::optional<std::pair<Uuid, Uuid>> m_compared;    ///< the scans of the comparison
    std::shared_ptr<const ScanComparison> m_comparison; ///< null without two scans
    ChangedRows m_rows;
    ListOf<Moment> m_earlierScans;
    ListOf<Moment> m_laterScans;
};

} // namespace Loadwick
