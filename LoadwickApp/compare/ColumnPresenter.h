#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

#include "base/ListOf.h"
#include "compare/ComparePresenter.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// One repository's card: what its latest scan measured, and its bars, one for each category of the
/// axis that all cards share. A card that shows another repository keeps the items of its bars,
/// because making them takes longer than a frame.
class ColumnPresenter : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Loadwick::ComparePresenter *compare READ compare WRITE setCompare REQUIRED)
    Q_PROPERTY(int number READ number WRITE setNumber REQUIRED)
    Q_PROPERTY(Loadwick::RowList *bars READ bars CONSTANT)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString path READ path NOTIFY changed)
    Q_PROPERTY(QString scanned READ scanned NOTIFY changed)
    Q_PROPERTY(QString total READ total NOTIFY changed)
    Q_PROPERTY(int band READ band NOTIFY changed)
    Q_PROPERTY(QString bandText READ bandText NOTIFY changed)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)
    Q_PROPERTY(QString chartName READ chartName NOTIFY changed)

public:
    explicit ColumnPresenter(TextLocale locale = {}, QObject *parent = nullptr);

    /// The source of the repositories and the locale; changes of it are followed.
    [[nodiscard]] ComparePresenter *compare() const { return m_compare; }
    void setCompare(ComparePresenter *compare);

    /// The repository's index. An index out of range changes nothing.
    [[nodiscard]] int number() const { return m_number; }
    void setNumber(int number);

    /// Shows the comparison's column at `column`.
    void show(std::shared_ptr<const Comparison> comparison, std::size_t column);

    /// One row for each category: "category", "value", "length" (0 to 1), "isRecorded" and
    /// "spoken", the whole row in words. No rows for a scan without categories, even if the axis
    /// has some.
    [[nodiscard]] RowList *bars() { return &m_bars; }

    [[nodiscard]] QString name() const;
    /// The path, which tells namesakes apart.
    [[nodiscard]] QString path() const;
    [[nodiscard]] QString scanned() const;
    [[nodiscard]] QString total() const;
    /// The total's band, as an index of the theme's bands.
    [[nodiscard]] int band() const;
    [[nodiscard]] QString bandText() const;
    /// Shown instead of the bars of a scan without categories; empty for one with some.
    [[nodiscard]] QString emptyText() const;
    /// What the bars are, for a screen reader.
    [[nodiscard]] QString chartName() const;

Q_SIGNALS:
    void changed();

private:
    struct Bar
    {
        std::string_view category; ///< owned by the comparison
        std::optional<std::int64_t> tokens;
    };
    [[nodiscard]] std::vector<ListOf<Bar>::Role> barRoles() const;
    [[nodiscard]] std::vector<Bar> shownBars() const;
    [[nodiscard]] const RecordedScan &scan() const { return m_comparison->columns.at(m_column); }
    void follow();

    QPointer<ComparePresenter> m_compare;
    int m_number = -1;
    TextLocale m_locale;
    std::shared_ptr<const Comparison> m_comparison; ///< none before the first is shown
    std::size_t m_column = 0;
    ListOf<Bar> m_bars;
};

} // namespace Loadwick
