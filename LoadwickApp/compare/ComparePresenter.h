#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "base/ListOf.h"
#include "compare/CombinedChart.h"
#include "compare/Comparison.h"
#include "model/ScanModel.h"
#include "model/TaskDispatcher.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// A repository and its rank on the leaderboard, from 1.
struct RankedEntry
{
    int rank;
    LeaderboardEntry entry;
};

[[nodiscard]] std::vector<RankedEntry> ranked(std::vector<LeaderboardEntry> heaviestFirst);

using LeaderboardRows = ListOf<RankedEntry>;

/// What a row of the leaderboard says: "rank", "title", "detail", "value", "band" and "bandTitle"
/// of the latest total, "trendKind", "trendTitle" and "trendSymbol" for a `TrendPill`, "path", the
/// path that tells namesakes apart, and "sentence", all words of the row.
[[nodiscard]] std::vector<LeaderboardRows::Role> leaderboardRoles(const TextLocale &locale);

/// What the Compare page says about the recorded repositories. Belongs to the interface thread; the
/// model outlives it and must not change afterwards.
class ComparePresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY changed)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)
    Q_PROPERTY(Loadwick::RowList *leaderboard READ leaderboard CONSTANT)
    Q_PROPERTY(int columnCount READ columnCount NOTIFY changed)
    Q_PROPERTY(int categoryCount READ categoryCount NOTIFY changed)
    Q_PROPERTY(bool isLarge READ isLarge NOTIFY changed)
    Q_PROPERTY(Loadwick::RowList *combined READ combined CONSTANT)
    Q_PROPERTY(QString scaleStart READ scaleStart CONSTANT)
    Q_PROPERTY(QString scaleEnd READ scaleEnd NOTIFY changed)

public:
    /// A large history is compared in the background, where there is a dispatcher; the page keeps
    /// what it shows until then.
    ComparePresenter(ScanModel &model, TextLocale locale,
                     std::shared_ptr<TaskDispatcher> dispatcher = {});

    /// Why there is nothing to compare yet; both are empty with two or more repositories.
    [[nodiscard]] QString emptyTitle() const { return m_emptyTitle; }
    [[nodiscard]] QString emptyText() const { return m_emptyText; }

    /// Every repository, heaviest first.
    [[nodiscard]] RowList *leaderboard() { return &m_leaderboard; }

    /// The number of repositories; 0 if there is nothing to compare.
    [[nodiscard]] int columnCount() const;
    /// The comparison, for the cards. Immutable: `changed` announces a new one.
    [[nodiscard]] std::shared_ptr<const Comparison> comparison() const { return m_comparison; }
    [[nodiscard]] const TextLocale &locale() const { return m_locale; }

    /// The number of rows of each card.
    [[nodiscard]] int categoryCount() const;
    /// Whether there are too many bars to create them all before the page is shown.
    [[nodiscard]] bool isLarge() const;

    /// The lines of the chart that puts all repositories on one axis.
    [[nodiscard]] RowList *combined() { return &m_combined; }

    /// The ends of the scale that all bars share, as figures.
    [[nodiscard]] QString scaleStart() const;
    [[nodiscard]] QString scaleEnd() const;

    /// The repositories for other programs, as `ScanTables::categories` writes them, by name. The
    /// function that writes them may be called on any thread.
    [[nodiscard]] std::function<QByteArray()> table() const;

Q_SIGNALS:
    void changed();

private:
    void showHistory();
    void show(std::shared_ptr<const Comparison> comparison);
    void release(std::shared_ptr<const Comparison> comparison) const;
    void showWhyEmpty(const Comparison *comparison);

    ScanModel &m_model;
    TextLocale m_locale;
    std::shared_ptr<TaskDispatcher> m_dispatcher;
    int m_changes = 0; ///< of the history
    QString m_emptyTitle;
    QString m_emptyText;
    std::shared_ptr<const Comparison> m_comparison = std::make_shared<const Comparison>();
    LeaderboardRows m_leaderboard;
    CombinedRows m_combined;
};

} // namespace Loadwick
