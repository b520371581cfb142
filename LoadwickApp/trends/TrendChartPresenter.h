#pragma once

#include <span>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "charts/TrendLine.h"
#include "history/RecordedScan.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// The card with one repository's line of totals, or the reason why there is none yet.
class TrendChartPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the page's presenter.")
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY changed)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
    Q_PROPERTY(QString period READ period NOTIFY changed)
    Q_PROPERTY(Loadwick::TrendLine *line READ line CONSTANT)

public:
    explicit TrendChartPresenter(const TextLocale &locale) : m_locale(locale), m_line(locale) {}

    void showNoHistory();
    /// The history is being read.
    void showReading();
    /// The scans of the repository shown, in the order of the history.
    void show(std::span<const RecordedScan> scans);

    // The words are composed on demand: days and figures load the locale's data, megabytes that a
    // window without this page does without.

    /// Why there is no trend yet; both are empty if there are enough scans. The title alone may be
    /// empty.
    [[nodiscard]] QString emptyTitle() const;
    [[nodiscard]] QString emptyText() const;

    /// The chart in words. Empty without a line, as the period is.
    [[nodiscard]] QString summary() const;
    /// The days of the scans, since an axis of hours names none.
    [[nodiscard]] QString period() const;
    [[nodiscard]] TrendLine *line() { return &m_line; }

Q_SIGNALS:
    void changed();

private:
    enum class Shown
    {
        noHistory,
        reading,
        scans
    };

    void show(Shown shown, std::span<const RecordedScan> scans);
    [[nodiscard]] QString day(const LineSample &sample) const;
    [[nodiscard]] QString figure(std::int64_t tokens) const;
    [[nodiscard]] QString nameText() const;
    [[nodiscard]] const std::vector<LineSample> &samples() const
    {
        return m_line.geometry().samples();
    }

    TextLocale m_locale;
    Shown m_shown = Shown::noHistory;
    QString m_repositoryName;
    TrendLine m_line;
};

} // namespace Loadwick
