#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "charts/TrendLine.h"
#include "report/OpinionBand.h"
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
    [[nodiscard]] bool hasScans() const noexcept { return m_count > 0; }

    // Composed on demand: a figure loads the locale's data, megabytes that a window without this
    // page does without.
    [[nodiscard]] QString latest() const; ///< tokens
    [[nodiscard]] QString range() const;  ///< of the latest total's band
    [[nodiscard]] int band() const noexcept { return OpinionBand::band(m_latest); }
    [[nodiscard]] QString bandTitle() const;

    /// From the earliest to the latest total.
    [[nodiscard]] QString drift() const;
    [[nodiscard]] QString driftCaption() const;

Q_SIGNALS:
    void changed();

private:
    TextLocale m_locale;
    std::size_t m_count = 0;
    std::int64_t m_latest = 0;
    std::int64_t m_drift = 0;
};

} // namespace Loadwick
