#include "overview/OverviewPresenter.h"

#include <algorithm>
#include <utility>
#include <variant>

#include <QClipboard>
#include <QDateTime>
#include <QGuiApplication>

#include "base/QtText.h"
#include "overview/ReportDocument.h"
#include "report/ReportTable.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

QString answerLinesOf(const ScanReport &report, const TextLocale &locale)
{
    const auto grouped = [&locale](std::int64_t count) {
        return qtText(NumberText::grouped(count, locale));
    };
    return OverviewPresenter::tr("%1 read as categories, %2 not")
        .arg(grouped(report.answerLines.read), grouped(report.answerLines.unread));
}

std::vector<SessionDetail> detailsOf(const ScanReport &report, const TextLocale &locale)
{
    return {
        {OverviewPresenter::tr("Repository path"), qtText(report.repositoryPath)},
        {OverviewPresenter::tr("Claude executable"), qtText(report.resolvedCLIPath)},
        {OverviewPresenter::tr("Session ID"), qtText(report.sessionID)},
        {OverviewPresenter::tr("Duration"),
         OverviewPresenter::tr("%1 seconds").arg(qtText(NumberText::oneDecimal(report.duration)))},
        {OverviewPresenter::tr("Answer lines"), answerLinesOf(report, locale)},
    };
}

QString summaryOf(const ScanReport &report, const TextLocale &locale)
{
    QStringList lines;
    for (const std::string &line : report.summaryLines(locale))
        lines.append(qtText(line));
    return lines.join(QLatin1Char('\n'));
}

} // namespace

OverviewPresenter::OverviewPresenter(ScanModel &model, TextLocale locale, Clock clock,
                                     std::filesystem::path home)
    : m_model(model),
      m_locale(std::move(locale)),
      m_clock(std::move(clock)),
      m_home(std::move(home)),
      m_start(m_clock()),
      m_breakdown(m_locale),
      m_files(m_locale, m_home),
      m_details({{"label", [](const SessionDetail &detail) { return detail.label; }},
                 {"value", [](const SessionDetail &detail) { return detail.value; }}}),
      m_weekly(m_locale),
      m_band(m_locale),
      m_latestChange(m_model, m_locale)
{
    m_tick.setSingleShot(true);
    m_tick.setTimerType(Qt::PreciseTimer);
    connect(&m_tick, &QTimer::timeout, this, &OverviewPresenter::tick);
    m_model.state().observe({.didChange = [this] { showCurrentState(); }});
    showCurrentState();
}

QString OverviewPresenter::stateWords() const
{
    switch (m_state) {
    case State::Empty:
        return {};
    case State::Loading:
        return tr("Scan started");
    case State::Failure:
        return tr("Scan failed. %1").arg(m_headline);
    case State::Report:
        return tr("Scan complete. %1").arg(m_band.sentence());
    }
    return {};
}

void OverviewPresenter::setTimeShown(bool isShown)
{
    if (m_isTimeShown == isShown)
        return;
    m_isTimeShown = isShown;
    Q_EMIT isTimeShownChanged();
    tick();
}

void OverviewPresenter::tick()
{
    m_tick.stop();
    if (!m_isTimeShown || m_state != State::Loading)
        return;
    using namespace std::chrono_literals;
    m_tick.start(1s - elapsedTime() % 1s);
    Q_EMIT elapsedChanged();
}

std::chrono::milliseconds OverviewPresenter::elapsedTime() const
{
    using std::chrono::milliseconds;
    return std::max(std::chrono::floor<milliseconds>(m_clock() - m_start), milliseconds::zero());
}

QString OverviewPresenter::elapsed() const
{
    const auto past = elapsedTime() / std::chrono::seconds(1);
    return QStringLiteral("%1:%2").arg(past / 60).arg(past % 60, 2, 10, QLatin1Char('0'));
}

QString OverviewPresenter::elapsedWords() const
{
    const auto minutes = elapsedTime() / std::chrono::minutes(1);
    if (minutes == 0)
        return tr("Running for less than a minute");
    return minutes == 1 ? tr("Running for 1 minute") : tr("Running for %1 minutes").arg(minutes);
}

void OverviewPresenter::copySummary() const
{
    QGuiApplication::clipboard()->setText(m_summary);
}

QString OverviewPresenter::repositoryName() const
{
    return m_report ? qtText(m_report->repositoryName) : QString();
}

QDate OverviewPresenter::day() const
{
    const auto scanned = m_report ? recordedDate() : std::nullopt;
    return scanned ? QDateTime::fromSecsSinceEpoch(scanned->time_since_epoch().count()).date()
                   : QDate();
}

std::function<QByteArray()> OverviewPresenter::table() const
{
    if (!m_report)
        return [] { return QByteArray(); };
    return [report = m_report, scanned = recordedDate()] {
        return QByteArray::fromStdString(ReportTable::bytes(*report, scanned));
    };
}

std::function<QByteArray()> OverviewPresenter::document() const
{
    using std::chrono::system_clock;
    if (!m_report)
        return [] { return QByteArray(); };
    const ReportDocument document = {
        .report = m_report,
        .scanned = recordedDate(),
        .saved = std::chrono::floor<std::chrono::seconds>(system_clock::now()),
        .locale = m_locale,
        .home = m_home};
    return [document] { return document.html(); };
}

/// The report itself has no date. It is not recorded at once, nor where the history was cleared.
std::optional<std::chrono::sys_seconds> OverviewPresenter::recordedDate() const
{
    if (!m_model.isHistoryComplete())
        return std::nullopt;
    const auto &history = m_model.history().get();
    const auto recorded = std::find_if(history.rbegin(), history.rend(), [this](const auto &scan) {
        return scan.repositoryPath == m_report->repositoryPath && scan.total == m_report->total;
    });
    return recorded != history.rend() ? std::optional(recorded->date) : std::nullopt;
}

void OverviewPresenter::show(const ScanState::Idle &)
{
    m_state = State::Empty;
}

void OverviewPresenter::show(const ScanState::Scanning &)
{
    m_state = State::Loading;
    m_start = m_clock();
}

void OverviewPresenter::show(const ScanState::Failed &failed)
{
    m_state = State::Failure;
    m_headline = qtText(failed.error.headline());
    m_detail = qtText(failed.error.detail());
    m_platformNote = qtText(failed.error.platformNote().value_or(""));
}

void OverviewPresenter::show(const ScanState::Result &result)
{
    m_state = State::Report;
    m_report = std::make_shared<const ScanReport>(result.report);
    const ScanReport &report = *m_report;
    m_repositoryPath = qtText(report.repositoryPath);
    m_summary = summaryOf(report, m_locale);
    m_notes = {qtText(ScanReport::measurementNote), qtText(ScanReport::splitsEstimateNote),
               qtText(report.totalSourceLine())};
    m_details.setRows(detailsOf(report, m_locale));
    m_breakdown.show(report);
    m_files.show(m_report);
    m_band.show(report);
    m_latestChange.show(report);
}

void OverviewPresenter::showCurrentState()
{
    std::visit([this](const auto &state) { show(state); }, m_model.state().get().value());
    tick();
    Q_EMIT changed();
}

} // namespace Loadwick

#include "moc_OverviewPresenter.cpp"
