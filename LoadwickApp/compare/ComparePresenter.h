#pragma once

#include <memory>
#include <span>
#include <vector>

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include "compare/ColumnPresenter.h"
#include "compare/CombinedRows.h"
#include "compare/LeaderboardRows.h"
#include "model/ScanModel.h"
#include "report/TextLocale.h"

namespace Loadwick {

/// What the Compare page says of the recorded repositories. Belongs to the interface thread; the
/// model outlives it, and changes no more once it is gone.
class ComparePresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY changed)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel *leaderboard READ leaderboard CONSTANT)
    Q_PROPERTY(int columnCount READ columnCount NOTIFY changed)
    Q_PROPERTY(int categoryCount READ categoryCount NOTIFY changed)
    Q_PROPERTY(bool isLarge READ isLarge NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel *combined READ combined CONSTANT)
    Q_PROPERTY(QString scaleStart READ scaleStart CONSTANT)
    Q_PROPERTY(QString scaleEnd READ scaleEnd NOTIFY changed)
    Q_PROPERTY(QStringList reading READ reading CONSTANT)

public:
    ComparePresenter(ScanModel &model, TextLocale locale);

    /// Why there is nothing to compare yet; both empty when there are two repositories or more.
    [[nodiscard]] QString emptyTitle() const { return m_emptyTitle; }
    [[nodiscard]] QString emptyText() const { return m_emptyText; }

    [[nodiscard]] QAbstractItemModel *leaderboard() { return &m_leaderboard; }

    /// How many repositories there are; 0 when there is nothing to compare.
    [[nodiscard]] int columnCount() const { return m_columnCount; }
    /// The card at `index`, which lives as long as the presenter and is given another repository
    /// when the history changes; null for an index that is none of them.
    Q_INVOKABLE Loadwick::ColumnPresenter *column(int index) const;

    /// How many rows each card has.
    [[nodiscard]] int categoryCount() const;
    /// There are more bars than should all be made before anything is seen.
    [[nodiscard]] bool isLarge() const;

    [[nodiscard]] QAbstractItemModel *combined() { return &m_combined; }

    /// The ends of the scale that all bars share, in figures.
    [[nodiscard]] QString scaleStart() const;
    [[nodiscard]] QString scaleEnd() const;

    /// How the bars are to be read, in paragraphs.
    [[nodiscard]] QStringList reading() const;

    /// The repositories for other programs, as `ScanTables::categories` gives them, by name.
    [[nodiscard]] std::string table() const;

Q_SIGNALS:
    void changed();

private:
    void showHistory();
    void showWhyEmpty(std::span<const RecordedScan> columns);
    void showColumns();

    ScanModel &m_model;
    TextLocale m_locale;
    QString m_emptyTitle;
    QString m_emptyText;
    std::shared_ptr<const Comparison> m_comparison;
    LeaderboardRows m_leaderboard;
    CombinedRows m_combined;
    std::vector<std::unique_ptr<ColumnPresenter>> m_columns; ///< as many as there ever were
    int m_columnCount = 0;
};

} // namespace Loadwick
