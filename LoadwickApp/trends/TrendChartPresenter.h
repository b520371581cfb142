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

    /// Why there is no trend yet; both are empty if there are enough scans. The title alone may be
    /// empty.
    [[nodiscard]] QString emptyTitle() const { return m_emptyTitle; }
    [[nodiscard]] QString emptyText() const { return m_emptyText; }

    /// The chart in words.
    [[nodiscard]] QString summary() const { return m_summary; }
    /// The days of the scans, since an axis of hours names none. Empty without a line.
    [[nodiscard]] QString period() const { return m_period; }
    [[nodiscard]] TrendLine *line() { return &m_line; }

Q_SIGNALS:
    void changed();

private:
    void setWords(const QString &emptyTitle, const QString &emptyText, const QString &summary,
                  const QString &period);
    [[nodiscard]] QString oneScanText(const RecordedScan &scan) const;
    [[nodiscard]] QString summaryOf(const std::string &repositoryName) const;
    [[nodiscard]] QString periodOf(const std::vector<LineSample> &samples) const;

    TextLocale m_locale;
    QString m_emptyTitle;
    QString m_emptyText;
    QString m_summary;
    QString m_period;
    TrendLine m_line;
};

} // namespace Loadwick
