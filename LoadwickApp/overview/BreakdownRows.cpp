#include "overview/BreakdownRows.h"

#include <QCoreApplication>

#include "base/QtText.h"
#include "base/TokenText.h"
#include "overview/ShareText.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

QString sentenceOf(const SlabAttribution &row, const QString &share, const TextLocale &locale)
{
    return QCoreApplication::translate("BreakdownRows", "%1, %2, %3, %4")
        .arg(qtText(row.name), TokenText::count(row.tokens, locale), share,
             qtText(row.provenance.sourceLabel()));
}

std::vector<ListOf<SlabAttribution>::Role> breakdownRoles(const TextLocale &locale,
                                                          const std::int64_t &total)
{
    const auto tokens = [locale](const SlabAttribution &row) {
        return qtText(NumberText::grouped(row.tokens, locale));
    };
    const auto share = [&total](const SlabAttribution &row) {
        return ShareText::percent(row.tokens, total);
    };
    return {
        {"name", [](const SlabAttribution &row) { return qtText(row.name); }},
        {"tokens", tokens},
        {"share", share},
        {"source", [](const SlabAttribution &row) { return qtText(row.provenance.sourceLabel()); }},
        {"provenance",
         [](const SlabAttribution &row) { return qtText(row.provenance.rawValue()); }},
        {"sentence",
         [=](const SlabAttribution &row) { return sentenceOf(row, share(row), locale); }},
    };
}

} // namespace

BreakdownRows::BreakdownRows(const TextLocale &locale) : ListOf(breakdownRoles(locale, m_total)) {}

void BreakdownRows::show(const ScanReport &report)
{
    m_total = report.total;
    setRows(report.rows);
}

} // namespace Loadwick
