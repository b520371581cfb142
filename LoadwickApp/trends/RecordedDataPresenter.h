#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "base/ListOf.h"
#include "desktop/FileOpener.h"
#include "history/RecordedScan.h"
#include "model/ScanModel.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// The recorded data of all repositories: the newest scans, how much is stored, and its deletion.
/// The model outlives it.
class RecordedDataPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the page's presenter.")
    Q_PROPERTY(Loadwick::RowList *runs READ runs CONSTANT)
    Q_PROPERTY(QString runsDetail READ runsDetail NOTIFY changed)
    Q_PROPERTY(QString storageNote READ storageNote NOTIFY changed)
    Q_PROPERTY(QString storagePlatformNote READ storagePlatformNote CONSTANT)
    Q_PROPERTY(QString historyFile READ historyFile CONSTANT)
    Q_PROPERTY(Loadwick::FileOpener *opener READ opener CONSTANT)
    Q_PROPERTY(QString deleteTitle READ deleteTitle NOTIFY changed)
    Q_PROPERTY(bool canClear READ canClear NOTIFY changed)

public:
    static constexpr std::size_t mostRuns = 30;

    RecordedDataPresenter(ScanModel &model, TextLocale locale);

    /// Call it whenever the model's history has changed.
    void showHistory();

    /// The newest scans first, `mostRuns` at most: "title" (the repository), "detail" (when),
    /// "value" (tokens), "valueCaption", "band" (its number), "path", the repository's path where
    /// its name is ambiguous, else empty, and "sentence", all words of the row with its band.
    [[nodiscard]] RowList *runs() { return &m_runs; }
    /// Describes which scans these are; empty until the history has been read.
    [[nodiscard]] QString runsDetail() const;

    /// Empty while the history changes. Composed on demand: its figures load the locale's data,
    /// which start-up does not need.
    [[nodiscard]] QString storageNote() const;
    /// Where that is on this system, if the note speaks of another one; empty without a store.
    [[nodiscard]] QString storagePlatformNote() const;
    /// Its path; empty without a store.
    [[nodiscard]] QString historyFile() const;

    /// Call it before the data is on the screen; without it the file cannot be shown. Not owned.
    void openWith(FileOpener &opener) { m_opener = &opener; }
    [[nodiscard]] FileOpener *opener() const noexcept { return m_opener; }

    /// The title of the button that deletes that many scans permanently.
    [[nodiscard]] QString deleteTitle() const;
    /// False while the history changes: the title would tell a wrong number.
    [[nodiscard]] bool canClear() const;

    /// Deletes every recorded scan.
    Q_INVOKABLE void clear();

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] std::vector<ListOf<RecordedScan>::Role> runRoles() const;
    [[nodiscard]] QString pathOf(const RecordedScan &scan) const;

    ScanModel &m_model;
    FileOpener *m_opener = nullptr;
    TextLocale m_locale;
    ListOf<RecordedScan> m_runs;
};

} // namespace Loadwick
