#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include "report/OpinionBand.h"
#include "report/ScanReport.h"
#include "report/TextLocale.h"

namespace Loadwick {

/// Everything that the Overview says about one report, in the words and figures of the screen.
struct ReportTexts
{
    OpinionBand::Value band = OpinionBand::lean;
    QString repositoryPath;
    QString bandTitle;          ///< names the band's startup context
    QString bandSentence;       ///< says where the total falls
    QString total;              ///< tokens
    QList<QStringList> details; ///< label and value of each session detail
    QStringList notes;          ///< what the figures mean and where they come from
    QString summary;            ///< what "Copy Summary" copies

    [[nodiscard]] static ReportTexts fromReport(const ScanReport &report, const TextLocale &locale);
};

} // namespace Loadwick
