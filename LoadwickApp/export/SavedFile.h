#pragma once

#include <system_error>

#include <QByteArray>
#include <QCoreApplication>
#include <QDate>
#include <QString>

#include "dialogs/FileSaver.h"

namespace Loadwick {

/// A file that the user saves.
struct SavedFile
{
    /// A name to suggest, without its ending: `kind`, the repository's name and, if valid, the day
    /// as 2026-03-04, with a dash before each. Letters, digits, dots and underscores of the
    /// repository's name are kept, everything else becomes a dash, and it is cut after 60
    /// characters.
    [[nodiscard]] static QString suggestedName(const QString &kind, const QString &repositoryName,
                                               QDate day = {});

    /// Writes the file; empty on success. Fails with `std::errc::file_exists` and leaves the file
    /// alone if it exists and may not be replaced. No bytes mean that memory ran out for them.
    [[nodiscard]] static std::error_code write(const FileSaver::Target &target,
                                               const QByteArray &bytes);

    /// Why `write` failed: the end of a sentence, with its full stop, and the remedy if there is
    /// one. Other errors have the system's words.
    [[nodiscard]] static QString reason(const std::error_code &failure);

    Q_DECLARE_TR_FUNCTIONS(SavedFile)
};

} // namespace Loadwick
