#pragma once

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include "overview/BreakdownRows.h"
#include "report/ScanReport.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// Where the total goes, category by category: the donut, its read-out and the rows beside it.
class BreakdownPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the Overview.")
    Q_PROPERTY(Loadwick::RowList *rows READ rows CONSTANT)
    Q_PROPERTY(QList<qreal> slices READ slices NOTIFY changed)
    Q_PROPERTY(bool hasSlices READ hasSlices NOTIFY changed)
    Q_PROPERTY(QString total READ total NOTIFY changed)
    Q_PROPERTY(QString chartSummary READ chartSummary NOTIFY changed)
    Q_PROPERTY(bool selfReported READ selfReported NOTIFY changed)
    Q_PROPERTY(QStringList notes READ notes NOTIFY changed)

public:
    explicit BreakdownPresenter(TextLocale locale, QObject *parent = nullptr);

    void show(const ScanReport &report);

    [[nodiscard]] RowList *rows() { return &m_rows; }

    /// Tokens per row, for the chart.
    [[nodiscard]] const QList<qreal> &slices() const noexcept { return m_slices; }
    /// Whether any row has tokens to chart.
    [[nodiscard]] bool hasSlices() const noexcept { return m_hasSlices; }

    /// Tokens that Claude reported.
    [[nodiscard]] QString total() const { return m_total; }
    /// The chart in one sentence, for a screen reader; empty without slices.
    [[nodiscard]] QString chartSummary() const { return m_chartSummary; }

    /// Whether the session reported any categories.
    [[nodiscard]] bool selfReported() const noexcept { return m_selfReported; }

    /// Caveats about the rows; may be empty.
    [[nodiscard]] QStringList notes() const { return m_notes; }

    /// The read-out of one row; empty without such a row.
    Q_INVOKABLE [[nodiscard]] QString readOutTitle(int row) const;
    Q_INVOKABLE [[nodiscard]] QString readOutDetail(int row) const;
    /// The whole row, for a screen reader; empty without such a row.
    Q_INVOKABLE [[nodiscard]] QString readOutSentence(int row) const;

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] QString summaryOfChart() const;

    TextLocale m_locale;
    BreakdownRows m_rows;
    QList<qreal> m_slices;
    bool m_hasSlices = false;
    bool m_selfReported = true;
    QString m_total;
    QString m_chartSummary;
    QStringList m_notes;
};

} // namespace Loadwick
