#include "GallerySamples.h"

#include "history/ScanHistory.h"
#include "onboarding/PreferencesCompletionStore.h"
#include "samples/SampleHistories.h"
#include "samples/SampleScans.h"
#include "text/TextLocale.h"

namespace Loadwick {
namespace {

const TextLocale locale{.numbers = "en_US", .dates = "en_US"};
const std::filesystem::path home = "/home/someone"; // nothing there is read or written

} // namespace

GallerySamples::GallerySamples(QObject *parent)
    : QObject(parent),
      m_zero(locale),
      m_lean(locale),
      m_heavy(locale),
      m_excessive(locale),
      m_files(locale, home),
      m_noFiles(locale, home),
      m_manyScans(locale),
      m_twoScans(locale),
      m_oneScan(locale),
      m_onboarding(std::make_shared<PreferencesCompletionStore>(home / "preferences.ini")),
      m_leaderboard(leaderboardRoles(locale))
{
    m_zero.show(SampleScans::zero().report());
    m_lean.show(SampleScans::lean().report());
    m_heavy.show(SampleScans::heavy().report());
    m_excessive.show(SampleScans::excessive().report());
    m_files.show(std::make_shared<const ScanReport>(SampleScans::heavy().report()));
    m_noFiles.show(std::make_shared<const ScanReport>(SampleScans::zero().report()));
    m_manyScans.show(SampleHistories::ofSize(30, 1, 1));
    m_twoScans.show(SampleHistories::ofSize(2, 1, 1));
    m_oneScan.show(SampleHistories::ofSize(1, 1, 1));
    m_leaderboard.setRows(ranked(ScanHistory::leaderboard(SampleHistories::ofSize(31, 5, 1))));
}

} // namespace Loadwick
