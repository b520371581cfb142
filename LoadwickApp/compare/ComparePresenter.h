#pragma once

#include <memory>
#include <span>

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include "compare/CombinedRows.h"
#include "compare/Comparison.h"
#include "compare/LeaderboardRows.h"
#include "model/ScanModel.h"
#include "text/TextLocale.h"

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
    [[nodiscard]] int columnCount() const;
    /// What they are, for their cards. It does not change: `changed` tells of another one.
    [[nodiscard]] std::shared_ptr<const Comparison> comparison() const { return m_comparison; }
    [[nodiscard]] const TextLocale &locale() const { return m_locale; }

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

    ScanModel &m_model;
    TextLocale m_locale;
    QString m_emptyTitle;
    QString m_emptyText;
    std::shared_ptr<const Comparison> m_comparison;
    LeaderboardRows m_leaderboard;
    CombinedRows m_combined;
};

} // namespace Loadwick
