#pragma once

#include <cstddef>
#include <memory>

#include <QAbstractListModel>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

#include "compare/ComparePresenter.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// One repository's card: what its latest scan measured, and as rows its bars, one for each
/// category of the axis that all cards share. A card that is given another repository keeps its
/// rows, which then say something else: to make rows anew takes longer than a frame has.
class ColumnPresenter : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Loadwick::ComparePresenter *compare READ compare WRITE setCompare REQUIRED)
    Q_PROPERTY(int number READ number WRITE setNumber REQUIRED)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString place READ place NOTIFY changed)
    Q_PROPERTY(QString scanned READ scanned NOTIFY changed)
    Q_PROPERTY(QString total READ total NOTIFY changed)
    Q_PROPERTY(int band READ band NOTIFY changed)
    Q_PROPERTY(QString bandText READ bandText NOTIFY changed)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)
    Q_PROPERTY(QString chartName READ chartName NOTIFY changed)

public:
    enum Role
    {
        Category = Qt::UserRole,
        Value,      ///< tokens, or a dash where the scan lacks the category
        Length,     ///< of the bar, 0 to 1
        IsRecorded, ///< whether the scan names the category
        Spoken      ///< the whole row in words
    };

    explicit ColumnPresenter(TextLocale locale = {}, QObject *parent = nullptr);

    /// Whose repositories it shows, in whose locale; what it shows follows them.
    [[nodiscard]] ComparePresenter *compare() const { return m_compare; }
    void setCompare(ComparePresenter *compare);

    /// Which of them; with a number that is none of theirs it goes on showing what it did.
    [[nodiscard]] int number() const { return m_number; }
    void setNumber(int number);

    /// Shows the comparison's column at `column`. The comparison is one of several owners' and does
    /// not change.
    void show(std::shared_ptr<const Comparison> comparison, std::size_t column);

    [[nodiscard]] QString name() const;
    /// The path, which tells repositories of one name apart.
    [[nodiscard]] QString place() const;
    [[nodiscard]] QString scanned() const;
    [[nodiscard]] QString total() const;
    /// The total's, as an index of the theme's bands.
    [[nodiscard]] int band() const;
    [[nodiscard]] QString bandText() const;
    /// What stands in place of the bars of a scan without categories; empty for one with some.
    [[nodiscard]] QString emptyText() const;
    /// What the bars are, for someone who does not see them.
    [[nodiscard]] QString chartName() const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] const RecordedScan &scan() const { return m_comparison->columns.at(m_column); }
    void follow();

    QPointer<ComparePresenter> m_compare;
    int m_number = -1;
    TextLocale m_locale;
    std::shared_ptr<const Comparison> m_comparison; ///< none before the first is shown
    std::size_t m_column = 0;
};

} // namespace Loadwick
