#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include <QCoreApplication>
#include <QStringList>

#include "base/ListOf.h"
#include "overview/ListedFile.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// A list of instruction files for the screen. A file without figures could not be read: its
/// "tokens", "amount", "share" and "figures" are empty. The roles:
/// "path", "pathInRepository" (empty outside it), "name" (the last part of the path), "size" (bytes
/// on disk, or that the file could not be read), "tokens" ("1,234"), "amount" ("1,234 tokens"),
/// "share" ("12.3% of total"), "figures" (tokens and share in one line), "weight" (tokens as a
/// double), "isReadable", "importer"
/// ("imported by docs/style.md"; empty for a file that a session looks for by itself), "chain" (the
/// importer, its importer and so on) and "words" (the whole row, for a screen reader).
class InstructionFileRows final : public ListOf<ListedFile>
{
    Q_DECLARE_TR_FUNCTIONS(InstructionFileRows)

public:
    /// What all the rows of one report have in common.
    struct Context
    {
        std::shared_ptr<const InstructionFileSet> files; ///< keeps what the rows point to
        TierFolders folders = {};
        std::int64_t total = 0; ///< tokens, authoritative
        TextLocale locale = {};
    };

    InstructionFileRows();

    void show(Context context, std::vector<ListedFile> rows);

private:
    [[nodiscard]] QString size(const ListedFile &file) const;
    [[nodiscard]] QString tokens(const ListedFile &file) const;
    [[nodiscard]] QString amount(const ListedFile &file) const;
    [[nodiscard]] QString share(const ListedFile &file) const;
    [[nodiscard]] QString figures(const ListedFile &file) const;
    using PathAsText = QString (*)(std::string_view path);
    [[nodiscard]] QStringList imports(const ListedFile &file, PathAsText pathAsText) const;
    [[nodiscard]] QString words(const ListedFile &file) const;
    [[nodiscard]] QString grouped(std::int64_t number) const;

    Context m_context;
};

} // namespace Loadwick
