#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "model/ScanModel.h"
#include "report/TextLocale.h"

namespace Loadwick {

/// The card that says what is stored, and can delete it. The model outlives it.
class RecordedDataPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the page's presenter.")
    Q_PROPERTY(QString storageNote READ storageNote NOTIFY changed)
    Q_PROPERTY(QString deleteTitle READ deleteTitle NOTIFY changed)
    Q_PROPERTY(bool canClear READ canClear NOTIFY changed)

public:
    RecordedDataPresenter(ScanModel &model, TextLocale locale)
        : m_model(model), m_locale(std::move(locale))
    {}

    /// To be called whenever the model's history has changed.
    void showHistory();

    [[nodiscard]] QString storageNote() const { return m_storageNote; }

    /// What deletes so many scans for good.
    [[nodiscard]] QString deleteTitle() const { return m_deleteTitle; }
    [[nodiscard]] bool canClear() const { return m_model.canClearHistory(); }

    /// Deletes every recorded scan.
    Q_INVOKABLE void clear();

Q_SIGNALS:
    void changed();

private:
    ScanModel &m_model;
    TextLocale m_locale;
    QString m_storageNote;
    QString m_deleteTitle;
};

} // namespace Loadwick
