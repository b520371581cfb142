#include "overview/InstructionFilesPresenter.h"

#include <algorithm>
#include <utility>

#include "base/QtText.h"
#include "report/ScanReport.h"
#include "text/Fatal.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

std::int64_t tokensOf(const std::vector<ListedFile> &files)
{
    std::int64_t tokens = 0;
    for (const ListedFile &file : files)
        tokens = checkedSum(tokens, file.estimate->estimatedTokens);
    return tokens;
}

QString countOf(std::size_t files, const TextLocale &locale)
{
    if (files == 1)
        return InstructionFilesPresenter::tr("1 instruction file");
    return InstructionFilesPresenter::tr("%1 instruction files")
        .arg(qtText(NumberText::grouped(static_cast<std::int64_t>(files), locale)));
}

int indexOfLargest(const std::vector<ListedFile> &files)
{
    const auto isSmaller = [](const ListedFile &left, const ListedFile &right) {
        return left.estimate->estimatedTokens < right.estimate->estimatedTokens;
    };
    return static_cast<int>(std::max_element(files.begin(), files.end(), isSmaller) -
                            files.begin());
}

} // namespace

InstructionFilesPresenter::InstructionFilesPresenter(TextLocale locale, std::filesystem::path home)
    : m_locale(std::move(locale)), m_home(std::move(home))
{}

void InstructionFilesPresenter::show(const std::shared_ptr<const ScanReport> &report)
{
    const InstructionFileRows::Context context{
        .files = std::shared_ptr<const InstructionFileSet>(report, &report->fileSet),
        .folders = TierFolders(report->repositoryPath, m_home),
        .total = report->total,
        .locale = m_locale};
    auto tiers = ListedFile::byTier(*context.files, context.folders);
    m_repositoryRows.show(context, std::move(tiers[InstructionFileTier::repository]));
    m_inheritedRows.show(context, std::move(tiers[InstructionFileTier::inherited]));
    m_personalRows.show(context, std::move(tiers[InstructionFileTier::personal]));
    m_note = qtText(report->unreportedCategoryFilesNote().value_or(""));
    m_hasImports = !context.files->importers.empty();
    m_largestRows.show(context, ListedFile::largest(*context.files, largestCount));
    showSizes(context);
    Q_EMIT changed();
}

void InstructionFilesPresenter::showSizes(const InstructionFileRows::Context &context)
{
    m_tiles.show(context, ListedFile::allReadable(*context.files));
    const std::int64_t tokens = tokensOf(m_tiles.rows());
    m_sizeSummary.clear();
    if (tokens == 0)
        return;
    const int largest = indexOfLargest(m_tiles.rows());
    m_sizeSummary = tr("Relative size of %1, %2 estimated tokens together. The largest: %3, %4.")
                        .arg(countOf(m_tiles.rows().size(), m_locale),
                             qtText(NumberText::grouped(tokens, m_locale)),
                             m_tiles.text(largest, QStringLiteral("path")),
                             m_tiles.text(largest, QStringLiteral("figures")));
}

} // namespace Loadwick

#include "moc_InstructionFilesPresenter.cpp"
