#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include "report/ScanReport.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// What the Overview says about one scan as a whole, in the words and figures of the screen.
struct ReportTexts
{
    QString repositoryPath;
    QList<QStringList> details; ///< label and value of each session detail
    QStringList notes;          ///< what the figures mean and where they come from
    QString summary;            ///< what "Copy Summary" copies

    [[nodiscard]] static ReportTexts fromReport(const ScanReport &report, const TextLocale &locale);

    Q_DECLARE_TR_FUNCTIONS(ReportTexts)
};

} // namespace Loadwick
