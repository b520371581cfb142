#include "overview/LargestFilesPresenter.h"

#include <utility>

namespace Loadwick {

LargestFilesPresenter::LargestFilesPresenter(TextLocale locale) : m_locale(std::move(locale)) {}

void LargestFilesPresenter::show(const ScanReport &report)
{
    // Only the few that are shown are kept.
    const auto shown = std::make_shared<InstructionFileSet>();
    for (const ListedFile &file : ListedFile::largest(report.fileSet, rowLimit))
        shown->repositoryFiles.push_back(*file.estimate);
    m_rows.show({.files = shown, .total = report.total, .locale = m_locale},
                ListedFile::allReadable(*shown));
}

QString LargestFilesPresenter::title()
{
    return QStringLiteral("Largest instruction files");
}

QString LargestFilesPresenter::detail()
{
    return QStringLiteral("The top five by local estimate; every file is listed in the section "
                          "above.");
}

QString LargestFilesPresenter::fileHeader()
{
    return QStringLiteral("File");
}

QString LargestFilesPresenter::tokensHeader()
{
    return QStringLiteral("Tokens");
}

QString LargestFilesPresenter::shareHeader()
{
    return QStringLiteral("% of total");
}

QString LargestFilesPresenter::emptyText()
{
    return QStringLiteral("No instruction files were found for this scan.");
}

} // namespace Loadwick
