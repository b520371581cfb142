#include "report/ReportTable.h"

#include <string_view>
#include <unordered_set>
#include <vector>

#include "report/ScanReport.h"
#include "text/CsvTable.h"

namespace Loadwick::ReportTable {
namespace {

void addHeader(CsvTable &table)
{
    for (const std::string_view name :
         {"Kind", "Name", "Tokens", "Source", "Bytes", "Tier", "Imported by"})
        table.text(name);
    table.endRow();
}

/// A row without what only files have.
void addFigure(CsvTable &table, std::string_view kind, std::string_view name, std::int64_t tokens,
               Provenance source)
{
    table.text(kind).text(name).figure(tokens).text(source.sourceLabel());
    table.empty().empty().empty().endRow();
}

void addFiles(CsvTable &table, const InstructionFileSet &files, InstructionFileTier tier)
{
    for (const InstructionFileEstimate &file : files.files(tier)) {
        const auto importer = files.importers.find(file.path);
        table.text("File")
            .text(file.path)
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

std::string bytes(const ScanReport &report)
{
    CsvTable table;
    addHeader(table);
    addFigure(table, "Total", report.repositoryName, report.total, Provenance::claudeReported);
    for (const SlabAttribution &row : report.rows)
        addFigure(table, "Category", row.name, row.tokens, row.provenance);
    for (const InstructionFileTier tier : InstructionFileTier::all)
        addFiles(table, report.fileSet, tier);
    for (const std::string &path : unreadOnly(report.fileSet))
        table.text("File")
            .text(path)
            .empty()
            .text("could not be read")
            .empty()
            .empty()
            .empty()
            .endRow();
    return table.bytes();
}

} // namespace Loadwick::ReportTable
