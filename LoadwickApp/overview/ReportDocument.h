#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>

#include <QByteArray>
#include <QCoreApplication>

#include "overview/ListedFile.h"
#include "report/ScanReport.h"
#include "text/TextLocale.h"

namespace Loadwick {

class HtmlPage;

/// A report as one HTML file for people without this program: the total, the breakdown and the
/// instruction files of the Overview with every caveat, and no contents of files. It needs nothing
/// else, runs nothing, and follows its reader's light or dark setting. Times are in the time zone
/// of the process, and in UTC.
struct ReportDocument
{
    Q_DECLARE_TR_FUNCTIONS(ReportDocument)

public:
    std::shared_ptr<const ScanReport> report;        ///< not null
    std::optional<std::chrono::sys_seconds> scanned; ///< nothing where it is not recorded
    std::chrono::sys_seconds saved;
    TextLocale locale;
    std::filesystem::path home; ///< determines the tier of an unreadable file, shortens paths

    /// The file's bytes; may be called on any thread.
    [[nodiscard]] QByteArray html() const;

private:
    void addHead(HtmlPage &page) const;
    void addHeader(HtmlPage &page) const;
    void addBand(HtmlPage &page) const;
    void addBreakdown(HtmlPage &page) const;
    void addCategories(HtmlPage &page) const;
    void addFiles(HtmlPage &page) const;
    void addTier(HtmlPage &page, const QString &title, const std::vector<ListedFile> &files) const;
    void addFile(HtmlPage &page, const ListedFile &file) const;
    void addSession(HtmlPage &page) const;
    [[nodiscard]] TierFolders folders() const;
    [[nodiscard]] QString grouped(std::int64_t number) const;
    [[nodiscard]] QString dated(std::chrono::sys_seconds moment) const;
};

} // namespace Loadwick
