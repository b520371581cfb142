#pragma once

#include <span>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "charts/TrendLine.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// The card with a repository's latest total, its band, and how far the total has moved.
class TrendSummaryPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the page's presenter.")
    Q_PROPERTY(bool hasScans READ hasScans NOTIFY changed)
    Q_PROPERTY(QString latest READ latest NOTIFY changed)
    Q_PROPERTY(QString range READ range NOTIFY changed)
    Q_PROPERTY(int band READ band NOTIFY changed)
    Q_PROPERTY(QString bandTitle READ bandTitle NOTIFY changed)
    Q_PROPERTY(QString drift READ drift NOTIFY changed)
    Q_PROPERTY(QString driftCaption READ driftCaption NOTIFY changed)

public:
    explicit TrendSummaryPresenter(TextLocale locale) : m_locale(std::move(locale)) {}

    /// By date. A drift beyond 64 bits ends the program.
    void show(std::span<const LineSample> samples);

    /// Whether there is anything to say; otherwise the words below are meaningless.
    [[nodiscard]] bool hasScans() const noexcept { return m_hasScans; }

    [[nodiscard]] QString latest() const { return m_latest; } ///< tokens
    [[nodiscard]] QString range() const { return m_range; }   ///< of the latest total's band
    [[nodiscard]] int band() const noexcept { return m_band; }
    [[nodiscard]] QString bandTitle() const { return m_bandTitle; }

    /// From the earliest to the latest total.
    [[nodiscard]] QString drift() const { return m_drift; }
    [[nodiscard]] QString driftCaption() const { return m_driftCaption; }

Q_SIGNALS:
    void changed();

private:
    void word(std::span<const LineSample> samples);

    TextLocale m_locale;
    bool m_hasScans = false;
    QString m_latest;
    QString m_range;
    int m_band = 0;
    QString m_bandTitle;
    QString m_drift;
    QString m_driftCaption;
};

} // namespace Loadwick
