#include "report/ReportTable.h"

#include <string_view>
#include <unordered_set>
#include <vector>

#include "report/ScanReport.h"
#include "text/CsvTable.h"
#include "text/DateText.h"

namespace Loadwick::ReportTable {
namespace {

/// The rows of one scan.
class Rows
{
public:
    Rows(const ScanReport &report, std::optional<std::chrono::sys_seconds> scanned)
        : m_report(report), m_date(scanned ? IsoDate::text(*scanned) : std::string())
    {
        for (const std::string_view name : {"Repository", "Path", "Date (UTC)", "Kind", "Name",
                                            "Tokens", "Source", "Bytes", "Tier", "Imported by"})
            m_table.text(name);
        m_table.endRow();
    }

    /// A row without what only files have.
    void addFigure(std::string_view kind, std::string_view name, std::int64_t tokens,
                   Provenance source)
    {
        begin(kind, name).figure(tokens).text(source.sourceLabel());
        m_table.empty().empty().empty().endRow();
    }

    void addFiles(InstructionFileTier tier);

    void addUnread(const std::string &path)
    {
        begin("File", path).empty().text("could not be read");
        m_table.empty().empty().empty().endRow();
    }

    [[nodiscard]] const std::string &bytes() const noexcept { return m_table.bytes(); }

private:
    CsvTable &begin(std::string_view kind, std::string_view name)
    {
        return m_table.text(m_report.repositoryName)
            .text(m_report.repositoryPath)
            .text(m_date)
            .text(kind)
            .text(name);
    }

    const ScanReport &m_report;
    std::string m_date;
    CsvTable m_table;
};

void Rows::addFiles(InstructionFileTier tier)
{
    const InstructionFileSet &files = m_report.fileSet;
    for (const InstructionFileEstimate &file : files.files(tier)) {
        const auto importer = files.importers.find(file.path);
        begin("File", file.path)
            .figure(file.estimatedTokens)
            .text(Provenance(Provenance::localEstimate).sourceLabel())
            .figure(file.byteCount)
            .text(InstructionFileSet::categoryName(tier))
            .text(importer != files.importers.end() ? importer->second : "")
            .endRow();
    }
}

/// The unreadable paths without those of files that have figures all the same.
std::vector<std::string> unreadOnly(const InstructionFileSet &files)
{
    std::unordered_set<std::string> counted;
    for (const InstructionFileEstimate &file : files.allFiles())
        counted.insert(file.path);
    std::vector<std::string> paths = files.unreadablePaths;
    std::erase_if(paths, [&counted](const std::string &path) { return counted.contains(path); });
    return paths;
}

} // namespace

std::string bytes(const ScanReport &report, std::optional<std::chrono::sys_seconds> scanned)
{
    Rows rows(report, scanned);
    rows.addFigure("Total", {}, report.total, Provenance::claudeReported);
    for (const SlabAttribution &row : report.rows)
        rows.addFigure("Category", row.name, row.tokens, row.provenance);
    for (const InstructionFileTier tier : InstructionFileTier::all)
        rows.addFiles(tier);
    for (const std::string &path : unreadOnly(report.fileSet))
        rows.addUnread(path);
    return rows.bytes();
}

} // namespace Loadwick::ReportTable
