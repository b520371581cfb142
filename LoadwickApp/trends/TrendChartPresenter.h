#pragma once

#include <span>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "charts/TrendLine.h"
#include "history/RecordedScan.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// The card with the line of one repository's totals, or with why there is none yet.
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
    /// The scans of the repository that is shown, in the order of the history.
    void show(std::span<const RecordedScan> scans);

    /// Why there is no trend yet; both empty when there are scans enough for one. The title may be
    /// empty by itself.
    [[nodiscard]] QString emptyTitle() const { return m_emptyTitle; }
    [[nodiscard]] QString emptyText() const { return m_emptyText; }

    /// The chart in words.
    [[nodiscard]] QString summary() const { return m_summary; }
    /// Of which days the scans are: an axis of hours names none. Empty when there is no line.
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
