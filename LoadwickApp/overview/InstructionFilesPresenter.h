#pragma once

#include <filesystem>

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include "overview/InstructionFileRows.h"
#include "report/ScanReport.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// The section that lists every instruction file of a report, by tier, and draws their sizes.
class InstructionFilesPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString detail READ detail CONSTANT)
    Q_PROPERTY(QString note READ note NOTIFY changed)
    Q_PROPERTY(QString sizeTitle READ sizeTitle CONSTANT)
    Q_PROPERTY(QString sizeSummary READ sizeSummary NOTIFY changed)
    Q_PROPERTY(QString sizeHint READ sizeHint CONSTANT)
    Q_PROPERTY(QString sizeCaption READ sizeCaption CONSTANT)
    Q_PROPERTY(QString noSizesText READ noSizesText CONSTANT)
    Q_PROPERTY(bool hasSizes READ hasSizes NOTIFY changed)
    Q_PROPERTY(Loadwick::InstructionFileRows *tiles READ tiles CONSTANT)
    Q_PROPERTY(QString repositoryTitle READ repositoryTitle CONSTANT)
    Q_PROPERTY(QString inheritedTitle READ inheritedTitle CONSTANT)
    Q_PROPERTY(QString personalTitle READ personalTitle CONSTANT)
    Q_PROPERTY(Loadwick::InstructionFileRows *repositoryRows READ repositoryRows CONSTANT)
    Q_PROPERTY(Loadwick::InstructionFileRows *inheritedRows READ inheritedRows CONSTANT)
    Q_PROPERTY(Loadwick::InstructionFileRows *personalRows READ personalRows CONSTANT)
    Q_PROPERTY(QString emptyTierText READ emptyTierText CONSTANT)
    Q_PROPERTY(QString shareCaption READ shareCaption CONSTANT)

public:
    /// `home` tells whose an unreadable file is; nothing there is read.
    InstructionFilesPresenter(TextLocale locale, std::filesystem::path home);

    void show(const ScanReport &report);

    [[nodiscard]] static QString title();
    [[nodiscard]] static QString detail();
    /// What the files mean for a session that reported no categories; else empty.
    [[nodiscard]] QString note() const { return m_note; }

    [[nodiscard]] static QString sizeTitle();
    /// The treemap in one sentence or two, for a screen reader; empty without a tile.
    [[nodiscard]] QString sizeSummary() const { return m_sizeSummary; }
    [[nodiscard]] static QString sizeHint();
    [[nodiscard]] static QString sizeCaption();
    [[nodiscard]] static QString noSizesText();
    /// Whether there is a tile to draw.
    [[nodiscard]] bool hasSizes() const { return !m_sizeSummary.isEmpty(); }
    /// The files with figures, in the order of their tiers.
    [[nodiscard]] InstructionFileRows *tiles() { return &m_tiles; }

    [[nodiscard]] static QString repositoryTitle();
    [[nodiscard]] static QString inheritedTitle();
    [[nodiscard]] static QString personalTitle();
    [[nodiscard]] InstructionFileRows *repositoryRows() { return &m_repositoryRows; }
    [[nodiscard]] InstructionFileRows *inheritedRows() { return &m_inheritedRows; }
    [[nodiscard]] InstructionFileRows *personalRows() { return &m_personalRows; }
    [[nodiscard]] static QString emptyTierText();
    [[nodiscard]] static QString shareCaption();

Q_SIGNALS:
    void changed();

private:
    void showSizes(const InstructionFileRows::Context &context);

    TextLocale m_locale;
    std::filesystem::path m_home;
    QString m_note;
    QString m_sizeSummary;
    InstructionFileRows m_tiles;
    InstructionFileRows m_repositoryRows;
    InstructionFileRows m_inheritedRows;
    InstructionFileRows m_personalRows;
};

} // namespace Loadwick
