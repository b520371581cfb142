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
    return tr("Largest instruction files");
}

QString LargestFilesPresenter::detail()
{
    return tr("The top five by local estimate; every file is listed in the section "
              "above.");
}

QString LargestFilesPresenter::fileHeader()
{
    return tr("File");
}

QString LargestFilesPresenter::tokensHeader()
{
    return tr("Tokens");
}

QString LargestFilesPresenter::shareHeader()
{
    return tr("% of total");
}

QString LargestFilesPresenter::emptyText()
{
    return tr("No instruction files were found for this scan.");
}

} // namespace Loadwick
