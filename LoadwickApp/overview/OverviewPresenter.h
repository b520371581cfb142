#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <QDate>
#include <QObject>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include "base/ListOf.h"
#include "model/ScanModel.h"
#include "overview/BandPresenter.h"
#include "overview/BreakdownPresenter.h"
#include "overview/InstructionFilesPresenter.h"
#include "overview/LatestChangePresenter.h"
#include "overview/WeeklyPresenter.h"
#include "text/TextLocale.h"

namespace Loadwick {

struct SessionDetail
{
    QString label;
    QString value;
};

/// The Overview of the current or the last scan. Belongs to the interface thread; the model
/// outlives it, but must not change afterwards.
class OverviewPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")
    Q_PROPERTY(State state READ state NOTIFY changed)
    Q_PROPERTY(QString stateWords READ stateWords NOTIFY changed)
    Q_PROPERTY(bool isTimeShown READ isTimeShown WRITE setTimeShown NOTIFY isTimeShownChanged)
    Q_PROPERTY(QString elapsed READ elapsed NOTIFY elapsedChanged)
    Q_PROPERTY(QString elapsedWords READ elapsedWords NOTIFY elapsedChanged)
    Q_PROPERTY(QString headline READ headline NOTIFY changed)
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    Q_PROPERTY(QString platformNote READ platformNote NOTIFY changed)
    Q_PROPERTY(QString repositoryPath READ repositoryPath NOTIFY changed)
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
    Q_PROPERTY(QStringList notes READ notes NOTIFY changed)
    Q_PROPERTY(Loadwick::BreakdownPresenter *breakdown READ breakdown CONSTANT)
    Q_PROPERTY(Loadwick::InstructionFilesPresenter *files READ files CONSTANT)
    Q_PROPERTY(Loadwick::RowList *sessionDetails READ sessionDetails CONSTANT)
    Q_PROPERTY(Loadwick::WeeklyPresenter *weekly READ weekly CONSTANT)
    Q_PROPERTY(Loadwick::BandPresenter *band READ band CONSTANT)
    Q_PROPERTY(Loadwick::LatestChangePresenter *latestChange READ latestChange CONSTANT)

public:
    enum class State
    {
        Empty,
        Loading,
        Failure,
        Report
    };
    Q_ENUM(State)

    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    /// Without a home folder no unreadable file counts as personal.
    OverviewPresenter(ScanModel &model, TextLocale locale,
                      Clock clock = &std::chrono::steady_clock::now,
                      std::filesystem::path home = {});

    [[nodiscard]] State state() const noexcept { return m_state; }

    /// What a screen reader says when the state is reached; empty while there is nothing to say.
    [[nodiscard]] QString stateWords() const;

    /// Whether the elapsed time can be seen; `elapsedChanged` is emitted only then.
    [[nodiscard]] bool isTimeShown() const noexcept { return m_isTimeShown; }
    void setTimeShown(bool isShown);
    /// The elapsed time of the running scan, as on a stopwatch: "0:07", "61:00".
    [[nodiscard]] QString elapsed() const;
    /// The same for a screen reader, in whole minutes, so that it seldom changes.
    [[nodiscard]] QString elapsedWords() const;

    /// The words of the last failure.
    [[nodiscard]] QString headline() const { return m_headline; }
    [[nodiscard]] QString detail() const { return m_detail; }
    /// Empty where there is none.
    [[nodiscard]] QString platformNote() const { return m_platformNote; }

    /// The last report as a whole; meaningful only in the state Report.
    [[nodiscard]] QString repositoryPath() const { return m_repositoryPath; }
    /// The text that "Copy Summary" copies.
    [[nodiscard]] QString summary() const { return m_summary; }
    /// What the figures mean and where they come from.
    [[nodiscard]] QStringList notes() const { return m_notes; }

    /// The cards of the report; they keep the last report, whatever the state.
    [[nodiscard]] BreakdownPresenter *breakdown() { return &m_breakdown; }
    [[nodiscard]] InstructionFilesPresenter *files() { return &m_files; }

    /// One row per detail, "label" and "value".
    [[nodiscard]] RowList *sessionDetails() { return &m_details; }

    [[nodiscard]] WeeklyPresenter *weekly() { return &m_weekly; }
    [[nodiscard]] BandPresenter *band() { return &m_band; }
    [[nodiscard]] LatestChangePresenter *latestChange() { return &m_latestChange; }

    /// Puts the summary on the clipboard.
    Q_INVOKABLE void copySummary() const;

    /// The name of the last report's repository; empty before the first.
    [[nodiscard]] QString repositoryName() const;
    /// The day of the last report's scan, where the user is; invalid if it is not recorded.
    [[nodiscard]] QDate day() const;
    /// Writes the last report for other programs, as `ReportTable` does, on any thread.
    [[nodiscard]] std::function<QByteArray()> table() const;
    /// Makes the last report's HTML file, on any thread.
    [[nodiscard]] std::function<QByteArray()> document() const;

Q_SIGNALS:
    void changed();
    void isTimeShownChanged();
    void elapsedChanged();

private:
    void show(const ScanState::Idle &);
    void show(const ScanState::Scanning &);
    void show(const ScanState::Failed &failed);
    void show(const ScanState::Result &result);
    void showCurrentState();
    void tick();
    [[nodiscard]] std::chrono::milliseconds elapsedTime() const;
    [[nodiscard]] std::optional<std::chrono::sys_seconds> recordedDate() const;

    ScanModel &m_model;
    TextLocale m_locale;
    Clock m_clock;
    std::filesystem::path m_home;
    std::shared_ptr<const ScanReport> m_report;
    QTimer m_tick; ///< runs out on the scan's next whole second
    bool m_isTimeShown = false;
    std::chrono::steady_clock::time_point m_start;
    State m_state = State::Empty;
    QString m_headline;
    QString m_detail;
    QString m_platformNote;
    QString m_repositoryPath;
    QString m_summary;
    QStringList m_notes;
    BreakdownPresenter m_breakdown;
    InstructionFilesPresenter m_files;
    ListOf<SessionDetail> m_details;
    WeeklyPresenter m_weekly;
    BandPresenter m_band;
    LatestChangePresenter m_latestChange;
};

} // namespace Loadwick
