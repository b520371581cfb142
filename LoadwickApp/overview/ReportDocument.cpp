#include "overview/ReportDocument.h"

#include <QFile>

#include "base/QtText.h"
#include "base/TokenText.h"
#include "overview/BandPresenter.h"
#include "overview/BreakdownPresenter.h"
#include "overview/HtmlPage.h"
#include "overview/ReportDrawings.h"
#include "overview/ShareText.h"
#include "text/DateText.h"
#include "text/Fatal.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

QString style()
{
    QFile file(markup(":/qt/qml/Loadwick/overview/report.css"));
    if (!file.open(QIODevice::ReadOnly))
        fatalError("The style of a report is missing.");
    return QString::fromUtf8(file.readAll());
}

QString classed(const char *kind, int index)
{
    return markup(kind) + QString::number(index);
}

void addNote(HtmlPage &page, const QString &note)
{
    if (!note.isEmpty())
        page.element("p", note, {{"class", markup("quiet small")}});
}

void addTitle(HtmlPage &page, const QString &title, const QString &detail)
{
    page.element("h2", title);
    page.element("p", detail, {{"class", markup("quiet")}});
}

enum class Column
{
    words,
    figures
};

void addHeads(HtmlPage &page, std::initializer_list<std::pair<QString, Column>> heads)
{
    const HtmlPage::Element row = page.open("tr");
    for (const auto &[title, column] : heads)
        page.element("th", title,
                     {{"scope", markup("col")},
                      {"class", markup(column == Column::figures ? "figure" : "words")}});
}

void addFigure(HtmlPage &page, const QString &figure)
{
    page.element("td", figure, {{"class", markup("figure")}});
}

void addDot(HtmlPage &page, const QString &color)
{
    page.element("span", QStringLiteral("●"),
                 {{"class", markup("dot ") + color}, {"aria-hidden", markup("true")}});
}

} // namespace

QByteArray ReportDocument::html() const
{
    HtmlPage page;
    {
        const HtmlPage::Element html = page.open("html", {{"lang", markup("en")}});
        addHead(page);
        const HtmlPage::Element body = page.open("body");
        const HtmlPage::Element main = page.open("main");
        addHeader(page);
        addBand(page);
        addBreakdown(page);
        addFiles(page);
        addSession(page);
    }
    return page.bytes();
}

void ReportDocument::addHead(HtmlPage &page) const
{
    const HtmlPage::Element head = page.open("head");
    page.emptyElement("meta", {{"charset", markup("utf-8")}});
    page.emptyElement("meta",
                      {{"name", markup("viewport")}, {"content", markup("width=device-width")}});
    // Whatever a name in it holds, nothing is loaded or run.
    page.emptyElement("meta",
                      {{"http-equiv", markup("Content-Security-Policy")},
                       {"content", markup("default-src 'none'; style-src 'unsafe-inline'")}});
    page.element("title",
                 tr("Startup context of %1: %2")
                     .arg(qtText(report->repositoryName), TokenText::count(report->total, locale)));
    page.element("style", style());
}

void ReportDocument::addHeader(HtmlPage &page) const
{
    const HtmlPage::Element header = page.open("header");
    {
        const HtmlPage::Element title = page.open("h1");
        page.text(tr("Startup context of "));
        page.foreign(qtText(report->repositoryName));
    }
    {
        const HtmlPage::Element path = page.open("p", {{"class", markup("quiet small")}});
        page.foreign(qtText(report->repositoryPath));
    }
    if (scanned)
        addNote(page, tr("Scanned on %1.").arg(dated(*scanned)));
    addNote(page, tr("Saved on %1 by Loadwick.").arg(dated(saved)));
}

void ReportDocument::addBand(HtmlPage &page) const
{
    BandPresenter band(locale);
    band.show(*report);
    const HtmlPage::Element section = page.open("section");
    page.element("h2", band.title(), {{"class", classed("text-", band.band())}});
    page.element("p", band.sentence());
    {
        const HtmlPage::Element metric = page.open("p", {{"class", markup("metric")}});
        page.text(band.total() + u' ');
        page.element("small", tr("tokens"));
    }
    page.element("p", tr("Authoritative · measured by Claude"));
    addNote(page, band.zeroNote());
    ReportDrawings::addMeter(page, report->total, band.meterSummary());
    {
        const HtmlPage::Element legend = page.open("ul", {{"class", markup("legend")}});
        for (const OpinionBand each : OpinionBand::all) {
            const HtmlPage::Element item = page.open("li");
            addDot(page, classed("band-", each));
            page.text(qtText(each.title()) + QStringLiteral(" · ") + qtText(each.range(locale)));
        }
    }
    for (const std::string_view note :
         {ScanReport::measurementNote, ScanReport::splitsEstimateNote})
        addNote(page, qtText(note));
    addNote(page, qtText(report->totalSourceLine()));
    addNote(page, qtText(OpinionBand::opinionNote));
    addNote(page, BandPresenter::anchorNote());
}

void ReportDocument::addBreakdown(HtmlPage &page) const
{
    BreakdownPresenter breakdown(locale);
    breakdown.show(*report);
    const HtmlPage::Element section = page.open("section");
    addTitle(page, tr("Estimated breakdown by category"),
             tr("Shares use the Claude-reported total; category rows are estimates."));
    if (!report->categoriesSelfReported) {
        addNote(page, tr("This session did not report category rows."));
        addNote(page, tr("Claude did not self-report categories for this session. The total and "
                         "band remain factual; instruction files are listed separately as local "
                         "estimates."));
    }
    if (breakdown.hasSlices())
        ReportDrawings::addDonut(page, {breakdown.slices().constData(), report->rows.size()},
                                 breakdown.total(), breakdown.chartSummary());
    else
        addNote(page, tr("The attributed category rows report no tokens to chart."));
    addCategories(page);
    for (const QString &note : breakdown.notes())
        addNote(page, note);
}

void ReportDocument::addCategories(HtmlPage &page) const
{
    const HtmlPage::Element room = page.open("div", {{"class", markup("table")}});
    const HtmlPage::Element table = page.open("table");
    addHeads(page, {{tr("Category"), Column::words},
                    {tr("Tokens"), Column::figures},
                    {tr("Share"), Column::figures},
                    {tr("Source"), Column::words}});
    int index = 0;
    for (const SlabAttribution &category : report->rows) {
        const HtmlPage::Element row = page.open("tr");
        {
            const HtmlPage::Element name = page.open("td");
            addDot(page, classed("slice-", index++ % ReportDrawings::sliceColors));
            page.foreign(qtText(category.name));
        }
        addFigure(page, grouped(category.tokens));
        addFigure(page, ShareText::percent(category.tokens, report->total));
        page.element("td", qtText(category.provenance.sourceLabel()));
    }
}

void ReportDocument::addFiles(HtmlPage &page) const
{
    const HtmlPage::Element section = page.open("section");
    addTitle(page, tr("All instruction files"),
             tr("Grouped by where Claude Code loads them. Their contents are never displayed or "
                "persisted."));
    addNote(page, qtText(report->unreportedCategoryFilesNote().value_or("")));
    const auto tiers = ListedFile::byTier(report->fileSet, folders());
    for (const InstructionFileTier tier : InstructionFileTier::all)
        addTier(page, qtText(InstructionFileSet::categoryName(tier)), tiers.at(tier));
    addNote(page, tr("Tokens of files are local estimates at 4 bytes/token."));
    addNote(page, tr("Share is calculated against the authoritative total reported by Claude."));
}

void ReportDocument::addTier(HtmlPage &page, const QString &title,
                             const std::vector<ListedFile> &files) const
{
    page.element("h3", title);
    if (files.empty()) {
        addNote(page, tr("No files found in this tier."));
        return;
    }
    const HtmlPage::Element room = page.open("div", {{"class", markup("table")}});
    const HtmlPage::Element table = page.open("table");
    addHeads(page, {{tr("File"), Column::words},
                    {tr("Bytes on disk"), Column::figures},
                    {tr("Tokens (estimate)"), Column::figures},
                    {tr("Share"), Column::figures}});
    for (const ListedFile &file : files)
        addFile(page, file);
}

void ReportDocument::addFile(HtmlPage &page, const ListedFile &file) const
{
    const HtmlPage::Element row = page.open("tr");
    {
        const HtmlPage::Element name = page.open("td");
        page.foreign(qtText(file.path));
        const auto importer = report->fileSet.importers.find(std::string(file.path));
        if (importer != report->fileSet.importers.end()) {
            const HtmlPage::Element reason = page.open("small");
            page.text(tr("imported by "));
            page.foreign(qtText(folders().shortPath(importer->second)));
        }
    }
    if (file.estimate == nullptr) {
        page.element("td", tr("Could not be read"), {{"colspan", markup("3")}});
        return;
    }
    addFigure(page, grouped(file.estimate->byteCount));
    addFigure(page, grouped(file.estimate->estimatedTokens));
    addFigure(page, ShareText::percent(file.estimate->estimatedTokens, report->total));
}

void ReportDocument::addSession(HtmlPage &page) const
{
    const HtmlPage::Element section = page.open("section");
    page.element("h2", tr("Session details"));
    const HtmlPage::Element details = page.open("dl");
    const auto detail = [&page](const QString &label, const QString &value) {
        page.element("dt", label);
        const HtmlPage::Element cell = page.open("dd");
        page.foreign(value);
    };
    detail(tr("Claude executable"), qtText(report->resolvedCLIPath));
    detail(tr("Session ID"), qtText(report->sessionID));
    detail(tr("Duration"), tr("%1 seconds").arg(qtText(NumberText::oneDecimal(report->duration))));
}

TierFolders ReportDocument::folders() const
{
    return {report->repositoryPath, home};
}

QString ReportDocument::grouped(std::int64_t number) const
{
    return qtText(NumberText::grouped(number, locale));
}

QString ReportDocument::dated(std::chrono::sys_seconds moment) const
{
    return qtText(dateText(moment, DateForm::dayAndTime, locale) + " (" + IsoDate::text(moment) +
                  ')');
}

} // namespace Loadwick
