#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "model/ScanModel.h"
#include "report/TextLocale.h"

namespace Loadwick {

/// What the Trends page says of the chosen repository's recorded scans, or of the most recently
/// scanned one's while none is chosen. Belongs to the interface thread; the model outlives it, and
/// changes no more once it is gone.
class TrendsPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY changed)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)

public:
    TrendsPresenter(ScanModel &model, TextLocale locale);

    /// What the page is about.
    [[nodiscard]] QString detail() const { return m_detail; }

    /// Why there is no trend yet; both empty when there are scans enough for one. The title may be
    /// empty by itself.
    [[nodiscard]] QString emptyTitle() const { return m_emptyTitle; }
    [[nodiscard]] QString emptyText() const { return m_emptyText; }

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] std::vector<RecordedScan> shownScans() const;
    void showHistory();
    void showOneScan(const RecordedScan &scan);

    ScanModel &m_model;
    TextLocale m_locale;
    QString m_detail;
    QString m_emptyTitle;
    QString m_emptyText;
};

} // namespace Loadwick
