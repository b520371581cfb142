#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include "desktop/FileOpener.h"
#include "overview/InstructionFileRows.h"
#include "text/TextLocale.h"

namespace Loadwick {

struct ScanReport;

/// The instruction files of a report: all of them by tier, their sizes, and the largest.
class InstructionFilesPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")
    Q_PROPERTY(Loadwick::FileOpener *opener READ opener CONSTANT)
    Q_PROPERTY(QString note READ note NOTIFY changed)
    Q_PROPERTY(bool hasImports READ hasImports NOTIFY changed)
    Q_PROPERTY(QString sizeSummary READ sizeSummary NOTIFY changed)
    Q_PROPERTY(bool hasSizes READ hasSizes NOTIFY changed)
    Q_PROPERTY(Loadwick::RowList *tiles READ tiles CONSTANT)
    Q_PROPERTY(Loadwick::RowList *repositoryRows READ repositoryRows CONSTANT)
    Q_PROPERTY(Loadwick::RowList *inheritedRows READ inheritedRows CONSTANT)
    Q_PROPERTY(Loadwick::RowList *personalRows READ personalRows CONSTANT)
    Q_PROPERTY(Loadwick::RowList *largestRows READ largestRows CONSTANT)

public:
    static constexpr std::size_t largestCount = 5;

    /// `home` determines the tier of an unreadable file; nothing in it is read.
    InstructionFilesPresenter(TextLocale locale, std::filesystem::path home);

    /// Keeps the report, whose files the rows point to.
    void show(const std::shared_ptr<const ScanReport> &report);

    /// Call it before the files are on the screen; without it they cannot be opened. Not owned.
    void openWith(FileOpener &opener) { m_opener = &opener; }
    [[nodiscard]] FileOpener *opener() const noexcept { return m_opener; }

    /// What the files mean to a session that reported no categories; else empty.
    [[nodiscard]] QString note() const { return m_note; }

    /// Whether a file was reached by an import.
    [[nodiscard]] bool hasImports() const noexcept { return m_hasImports; }

    /// The treemap in one sentence or two, for a screen reader; empty without a tile.
    [[nodiscard]] QString sizeSummary() const { return m_sizeSummary; }
    /// Whether there is a tile to draw.
    [[nodiscard]] bool hasSizes() const { return !m_sizeSummary.isEmpty(); }
    /// The files with figures, in the order of their tiers.
    [[nodiscard]] RowList *tiles() { return &m_tiles; }

    [[nodiscard]] RowList *repositoryRows() { return &m_repositoryRows; }
    [[nodiscard]] RowList *inheritedRows() { return &m_inheritedRows; }
    [[nodiscard]] RowList *personalRows() { return &m_personalRows; }
    /// The largest first; files of equal tokens in the order of the tiers.
    [[nodiscard]] RowList *largestRows() { return &m_largestRows; }

Q_SIGNALS:
    void changed();

private:
    void showSizes(const InstructionFileRows::Context &context);

    FileOpener *m_opener = nullptr;
    TextLocale m_locale;
    std::filesystem::path m_home;
    QString m_note;
    bool m_hasImports = false;
    QString m_sizeSummary;
    InstructionFileRows m_tiles;
    InstructionFileRows m_repositoryRows;
    InstructionFileRows m_inheritedRows;
    InstructionFileRows m_personalRows;
    InstructionFileRows m_largestRows;
};

} // namespace Loadwick
