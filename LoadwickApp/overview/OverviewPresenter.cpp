#include "overview/OverviewPresenter.h"

#include <utility>
#include <variant>

#include <QClipboard>
#include <QGuiApplication>

#include "base/QtText.h"
#include "overview/ElapsedTime.h"

namespace Loadwick {

OverviewPresenter::OverviewPresenter(ScanModel &model, TextLocale locale, Clock clock,
                                     std::filesystem::path home)
    : m_model(model),
      m_locale(std::move(locale)),
      m_clock(std::move(clock)),
      m_start(m_clock()),
      m_breakdown(m_locale),
      m_files(m_locale, std::move(home)),
      m_largestFiles(m_locale),
      m_details({"label", "value"}),
      m_weekly(m_locale),
      m_band(m_locale)
{
    m_tick.setInterval(std::chrono::seconds(1));
    connect(&m_tick, &QTimer::timeout, this, &OverviewPresenter::elapsedChanged);
    m_model.state().observe({.didChange = [this] { showCurrentState(); }});
    showCurrentState();
}

QString OverviewPresenter::elapsed() const
{
    return elapsedTimeText(std::chrono::duration_cast<std::chrono::seconds>(m_clock() - m_start));
}

void OverviewPresenter::copySummary() const
{
    QGuiApplication::clipboard()->setText(m_texts.summary);
}

void OverviewPresenter::show(const ScanState::Idle &)
{
    m_state = State::Empty;
}

void OverviewPresenter::show(const ScanState::Scanning &)
{
    m_state = State::Loading;
    m_start = m_clock();
    m_tick.start();
    Q_EMIT elapsedChanged();
}

void OverviewPresenter::show(const ScanState::Failed &failed)
{
    m_state = State::Failure;
    m_headline = qtText(failed.error.headline());
    m_detail = qtText(failed.error.detail());
}

void OverviewPresenter::show(const ScanState::Result &result)
{
    m_state = State::Report;
    m_texts = ReportTexts::fromReport(result.report, m_locale);
    m_breakdown.show(result.report);
    m_files.show(result.report);
    m_largestFiles.show(result.report);
    m_details.setRows(m_texts.details);
    m_band.show(result.report);
}

void OverviewPresenter::showCurrentState()
{
    m_tick.stop();
    std::visit([this](const auto &state) { show(state); }, m_model.state().get().value());
    Q_EMIT changed();
}

} // namespace Loadwick
