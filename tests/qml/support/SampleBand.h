#pragma once

#include <QObject>

#include "overview/BandPresenter.h"

namespace Loadwick {

/// A band presenter over a plain report whose total a test chooses.
class SampleBand : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Loadwick::BandPresenter *presenter READ presenter CONSTANT)
    Q_PROPERTY(double total READ total WRITE setTotal NOTIFY totalChanged)

public:
    explicit SampleBand(QObject *parent = nullptr);

    [[nodiscard]] BandPresenter *presenter() { return &m_presenter; }
    [[nodiscard]] double total() const { return m_total; }
    /// Shows the report of that total, even if it is the same as before.
    void setTotal(double total);

Q_SIGNALS:
    void totalChanged();

private:
    BandPresenter m_presenter;
    double m_total = 0;
};

} // namespace Loadwick
