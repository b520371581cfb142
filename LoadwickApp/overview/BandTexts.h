#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include "report/ScanReport.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// What the Overview says about a report's total: on the card of its band and on the card of the
/// room that it leaves.
struct BandTexts
{
    QString title;        ///< names the band's startup context
    QString sentence;     ///< says where the total falls
    QString total;        ///< tokens
    QStringList bands;    ///< the names of all bands, from lean to excessive
    QString meterSummary; ///< the band meter in words, for who does not see it
    QString anchorNote;   ///< why the bands lie where they lie
    QString score;        ///< the headroom score's figure
    QString scoreSummary; ///< the gauge in words, for who does not see it
    QString scoreDetail;  ///< says what the score is a part of
    QString scoreCaption; ///< says what the score is derived from

    [[nodiscard]] static BandTexts fromReport(const ScanReport &report, const TextLocale &locale);

    Q_DECLARE_TR_FUNCTIONS(BandTexts)
};

} // namespace Loadwick
