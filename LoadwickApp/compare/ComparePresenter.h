#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

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

public:
    ComparePresenter(ScanModel &model, TextLocale locale);

    /// Why there is nothing to compare yet; both empty when there are two repositories or more.
    [[nodiscard]] QString emptyTitle() const { return m_emptyTitle; }
    [[nodiscard]] QString emptyText() const { return m_emptyText; }

Q_SIGNALS:
    void changed();

private:
    void showHistory();
    void showOneRepository(const RecordedScan &latest);

    ScanModel &m_model;
    TextLocale m_locale;
    QString m_emptyTitle;
    QString m_emptyText;
};

} // namespace Loadwick
