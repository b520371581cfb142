#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "model/ScanModel.h"
#include "text/TextLocale.h"
#include "trends/RecordedDataPresenter.h"
#include "trends/ScanChangesPresenter.h"
#include "trends/TrendChartPresenter.h"
#include "trends/TrendSummaryPresenter.h"

namespace Loadwick {

/// The Trends page: the recorded scans of the chosen repository, or of the most recently scanned
/// one while none is chosen, and the recorded data of all repositories. Belongs to the interface
/// thread; the model outlives it and must not change afterwards.
class TrendsPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    Q_PROPERTY(Loadwick::TrendChartPresenter *chart READ chart CONSTANT)
    Q_PROPERTY(Loadwick::TrendSummaryPresenter *summary READ summary CONSTANT)
    Q_PROPERTY(Loadwick::ScanChangesPresenter *changes READ changes CONSTANT)
    Q_PROPERTY(Loadwick::RecordedDataPresenter *recordedData READ recordedData CONSTANT)

public:
    TrendsPresenter(ScanModel &model, const TextLocale &locale);

    /// What the page is about.
    [[nodiscard]] QString detail() const { return m_detail; }

    [[nodiscard]] TrendChartPresenter *chart() { return &m_chart; }
    [[nodiscard]] TrendSummaryPresenter *summary() { return &m_summary; }
    [[nodiscard]] ScanChangesPresenter *changes() { return &m_changes; }
    [[nodiscard]] RecordedDataPresenter *recordedData() { return &m_recordedData; }

    /// The scans of the chart for other programs, as `ScanTables::totals` writes them. The function
    /// that writes them may be called on any thread.
    [[nodiscard]] std::function<QByteArray()> table() const;

    /// The repository that the page is about; empty when none was scanned.
    [[nodiscard]] QString repositoryName() const { return m_repositoryName; }

Q_SIGNALS:
    void changed();
    /// The page shows another repository than before; not emitted for none.
    void repositoryChanged();

private:
    /// The path of the repository that the page is about.
    [[nodiscard]] std::optional<std::string> shownRepository() const;
    [[nodiscard]] std::vector<RecordedScan> shownScans() const;
    void showRepository();
    void showChart(std::span<const RecordedScan> scans);
    void showHistory();

    ScanModel &m_model;
    std::optional<std::string> m_repository;
    QString m_repositoryName;
    QString m_detail;
    TrendChartPresenter m_chart;
    TrendSummaryPresenter m_summary;
    ScanChangesPresenter m_changes;
    RecordedDataPresenter m_recordedData;
};

} // namespace Loadwick
