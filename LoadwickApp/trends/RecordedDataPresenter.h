#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "model/ScanModel.h"
#include "text/TextLocale.h"

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
    void showHistory() { Q_EMIT changed(); }

    /// Worded when it is asked for: its figures load the locale's data, of which a start has no
    /// need.
    [[nodiscard]] QString storageNote() const;

    /// What deletes so many scans for good.
    [[nodiscard]] QString deleteTitle() const;
    [[nodiscard]] bool canClear() const { return m_model.canClearHistory(); }

    /// Deletes every recorded scan.
    Q_INVOKABLE void clear();

Q_SIGNALS:
    void changed();

private:
    ScanModel &m_model;
    TextLocale m_locale;
};

} // namespace Loadwick
