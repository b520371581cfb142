#include "overview/BreakdownRows.h"

#include <QCoreApplication>

#include "base/QtText.h"
#include "overview/ShareText.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

QString sentenceOf(const SlabAttribution &row, const QString &tokens, const QString &share)
{
    return QCoreApplication::translate("BreakdownRows", "%1, %2 tokens, %3, %4")
        .arg(qtText(row.name), tokens, share, qtText(row.provenance.sourceLabel()));
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
         [=](const SlabAttribution &row) { return sentenceOf(row, tokens(row), share(row)); }},
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
