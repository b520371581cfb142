#include "overview/InstructionFileRows.h"

#include <functional>
#include <utility>

#include "base/QtText.h"
#include "base/TokenText.h"
#include "overview/ShareText.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

constexpr QLatin1String separator(", ");

QString nameOf(const ListedFile &file)
{
    return qtText(file.path.substr(file.path.find_last_of('/') + 1));
}

double weightOf(const ListedFile &file)
{
    return file.estimate != nullptr ? static_cast<double>(file.estimate->estimatedTokens) : 0.0;
}

} // namespace

InstructionFileRows::InstructionFileRows()
    : ListOf({
          {"path", [](const ListedFile &file) { return qtText(file.path); }},
          {"pathInRepository",
           [this](const ListedFile &file) {
               return qtText(m_context.folders.pathInRepository(file.path));
           }},
          {"name", nameOf},
          {"size", std::bind_front(&InstructionFileRows::size, this)},
          {"tokens", std::bind_front(&InstructionFileRows::tokens, this)},
          {"amount", std::bind_front(&InstructionFileRows::amount, this)},
          {"share", std::bind_front(&InstructionFileRows::share, this)},
          {"figures", std::bind_front(&InstructionFileRows::figures, this)},
          {"weight", weightOf},
          {"isReadable", [](const ListedFile &file) { return file.estimate != nullptr; }},
          {"importer",
           [this](const ListedFile &file) { return imports(file, &shownPath).value(0); }},
          {"chain",
           [this](const ListedFile &file) { return imports(file, &shownPath).join(separator); }},
          {"words", std::bind_front(&InstructionFileRows::words, this)},
      })
{}

void InstructionFileRows::show(Context context, std::vector<ListedFile> rows)
{
    const Context before = std::exchange(m_context, std::move(context)); // keeps the old files
    setRows(std::move(rows));
}

QString InstructionFileRows::size(const ListedFile &file) const
{
    return file.estimate != nullptr ? tr("%1 bytes on disk · local estimate at 4 bytes/token")
                                          .arg(grouped(file.estimate->byteCount))
                                    : tr("Could not be read");
}

QString InstructionFileRows::tokens(const ListedFile &file) const
{
    return file.estimate != nullptr ? grouped(file.estimate->estimatedTokens) : QString();
}

QString InstructionFileRows::amount(const ListedFile &file) const
{
    return file.estimate != nullptr
               ? TokenText::count(file.estimate->estimatedTokens, m_context.locale)
               : QString();
}

QString InstructionFileRows::share(const ListedFile &file) const
{
    return file.estimate != nullptr
               ? ShareText::ofTotal(file.estimate->estimatedTokens, m_context.total)
               : QString();
}

QString InstructionFileRows::figures(const ListedFile &file) const
{
    return file.estimate != nullptr ? tr("%1 estimated tokens · %2").arg(tokens(file), share(file))
                                    : QString();
}

// The importer of the file, the importer's importer and so on.
QStringList InstructionFileRows::imports(const ListedFile &file, PathAsText pathAsText) const
{
    QStringList steps;
    for (const std::string_view importer : m_context.files->importChain(std::string(file.path)))
        steps.append(tr("imported by %1").arg(pathAsText(m_context.folders.shortPath(importer))));
    return steps;
}

QString InstructionFileRows::words(const ListedFile &file) const
{
    QStringList sentences = {qtText(file.path), figures(file), size(file),
                             imports(file, &qtText).join(separator)};
    sentences.removeAll(QString());
    return sentences.join(QLatin1String(". ")) + QLatin1Char('.');
}

QString InstructionFileRows::grouped(std::int64_t number) const
{
    return qtText(NumberText::grouped(number, m_context.locale));
}

} // namespace Loadwick
