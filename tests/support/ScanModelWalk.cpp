#include "support/ScanModelWalk.h"

#include <array>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <system_error>
#include <vector>

#include "probe/FolderAccess.h"
#include "samples/SampleReport.h"

namespace Loadwick {

namespace {

namespace fs = std::filesystem;
using Phase = ScanStateTable::Phase;

/// The error of a dispatcher that can start no thread.
ProbeError noThread()
{
    return ProbeError::unreadableOutput(
        std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again)).what());
}

ScanStateTable::Entries entriesOf(const std::vector<RecordedScan> &scans)
{
    ScanStateTable::Entries entries;
    for (const RecordedScan &scan : scans)
        entries.push_back({.repository = scan.repositoryPath, .date = scan.date});
    return entries;
}

std::optional<ProbeError> errorIn(const ScanState &state)
{
    const auto *const failed = std::get_if<ScanState::Failed>(&state.value());
    return failed != nullptr ? std::optional(failed->error) : std::nullopt;
}

} // namespace

ScanModelWalk::ScanModelWalk(std::uint32_t seed, Recording recording)
    : m_random(seed), m_recording(recording), m_table(recording == Recording::withStore)
{
    m_harness.probe->answer = [this] { return probed(); };
    m_harness.scanner->answer = [this]() -> InstructionFileSet {
        if (m_scannerFails)
            throw std::runtime_error("the scanner failed");
        return {};
    };
    start();
}

void ScanModelWalk::step()
{
    m_changes.clear();
    m_table.wait();
    switch (below(16)) {
    case 0:
    case 1:
        return select();
    case 2:
    case 3:
        return scan();
    case 4:
        return below(8) == 0 ? clear() : moveClock();
    case 5:
        return changeCollaborators();
    case 6:
        return below(4) == 0 ? quit() : disruptDisk();
    default:
        return continueScan();
    }
}

std::string ScanModelWalk::difference()
{
    const std::size_t tasks =
        m_harness.dispatcher->backgroundCount() + m_harness.dispatcher->postedCount();
    if (m_changes != m_table.changes())
        return "changed " + m_changes + " instead of " + m_table.changes();
    if (static_cast<Phase>(m_model->state().get().value().index()) != m_table.phase())
        return "state";
    if (errorIn(m_model->state().get()) != m_table.error())
        return "error";
    if (m_model->selection().get() != m_table.selection())
        return "selection";
    if (entriesOf(m_model->history().get()) != m_table.history())
        return "history";
    if (m_model->canScan() != m_table.canScan())
        return "whether a scan can start";
    if (m_model->canClearHistory() != m_table.canClear())
        return "whether there is something to clear";
    return tasks == (m_table.phase() == Phase::scanning ? 1U : 0U) ? "" : "tasks";
}

void ScanModelWalk::start()
{
    ScanModel::Collaborators all = m_recording == Recording::withStore
                                       ? m_harness.collaborators()
                                       : m_harness.collaboratorsWithoutStore();
    all.now = [this] { return m_now; };
    m_model.emplace(std::move(all));
    m_harness.dispatcher->runAll();
    m_model->selection().observe({.didChange = [this] { m_changes += 's'; }});
    m_model->state().observe({.didChange = [this] { m_changes += 't'; }});
    m_model->history().observe({.didChange = [this] { m_changes += 'h'; }});
    m_table.start();
}

void ScanModelWalk::select()
{
    const RepoSelection missing =
        RepoSelection::fromUrl(m_harness.otherRepository().url / "missing");
    const std::array choices{m_harness.repository(), m_harness.otherRepository(), missing};
    const RepoSelection &chosen = choices.at(static_cast<std::size_t>(below(3)));
    m_model->select(chosen);
    m_table.select(chosen);
}

void ScanModelWalk::scan()
{
    const bool isStarted = m_table.canScan();
    if (isStarted) {
        m_scanned = m_table.selection();
        m_stage = 0;
    }
    m_model->scan();
    m_table.scan();
    if (isStarted && m_refusesThreads)
        refuse();
}

/// An outcome that was posted arrives before that of the deletion.
void ScanModelWalk::clear()
{
    if (m_harness.dispatcher->postedCount() > 0)
        return continueScan();
    m_model->clearHistory();
    if (m_harness.dispatcher->postedCount() > 0)
        m_harness.dispatcher->runPosted(); // no thread could be started
    else if (m_recording == Recording::withStore)
        m_harness.dispatcher->stepNewest();
    m_table.clear();
}

/// The outcome of a scan may arrive before or after the next start of the program.
void ScanModelWalk::quit()
{
    ++m_quits;
    m_model.reset();
    if (below(2) == 0)
        m_harness.dispatcher->runAll();
    start();
    m_harness.dispatcher->runAll();
}

/// The scan's next step, if one runs: a stage, or what follows its outcome.
void ScanModelWalk::continueScan()
{
    if (m_harness.dispatcher->backgroundCount() > 0) {
        m_error = expectedOfStage();
        m_harness.dispatcher->runBackground();
    } else if (m_harness.dispatcher->postedCount() > 0) {
        m_harness.dispatcher->runPosted();
        receive();
    }
}

void ScanModelWalk::receive()
{
    if (m_error)
        m_table.fail(*m_error);
    else if (m_stage == 2)
        succeed();
    else if (m_refusesThreads)
        refuse();
    ++m_stage;
    m_endedScans += m_table.phase() == Phase::scanning ? 0 : 1;
}

void ScanModelWalk::succeed()
{
    m_harness.dispatcher->runAll();
    m_table.succeed(m_now);
}

void ScanModelWalk::refuse()
{
    m_table.fail(noThread());
}

void ScanModelWalk::changeCollaborators()
{
    m_probeMood = below(2) == 0 ? Mood::works : static_cast<Mood>(below(5));
    m_scannerFails = below(6) == 0;
    m_refusesThreads = below(8) == 0;
    if (m_refusesThreads)
        m_harness.dispatcher->refuseBackground();
    else
        m_harness.dispatcher->allowBackground();
}

void ScanModelWalk::moveClock()
{
    using namespace std::chrono_literals;
    constexpr std::array<std::chrono::seconds, 5> jumps{-1h, 1h, 0s, 1s, 5min};
    m_now += jumps.at(static_cast<std::size_t>(below(5)));
}

void ScanModelWalk::disruptDisk()
{
    if (m_diskWorks && below(6) == 0) {
        m_files.write(m_harness.historyFolder() / ScanHistoryStore::fileName, "nonsense");
        m_table.corrupt();
        return;
    }
    m_diskWorks = !m_diskWorks;
    swapHistoryFolder();
    m_table.setDiskWorks(m_diskWorks);
}

/// Replaces the history's folder by a file, or restores it.
void ScanModelWalk::swapHistoryFolder()
{
    const fs::path folder = m_harness.historyFolder();
    const fs::path away = folder.native() + ".away";
    if (m_diskWorks) {
        fs::remove(folder);
        fs::rename(away, folder);
    } else {
        fs::create_directories(folder);
        fs::rename(folder, away);
        m_files.write(folder, "not a folder");
    }
}

ProbeResult ScanModelWalk::probed() const
{
    switch (m_probeMood) {
    case Mood::timesOut:
        throw ProbeError::timedOut();
    case Mood::fails:
        throw std::runtime_error("no luck");
    case Mood::lacksMemory:
        throw std::bad_alloc();
    case Mood::throwsSomethingElse:
        throw 7;
    case Mood::works:
        break;
    }
    return sampleProbeResult();
}

ProbeError ScanModelWalk::expectedOfProbe() const
{
    if (m_probeMood == Mood::timesOut)
        return ProbeError::timedOut();
    if (m_probeMood == Mood::fails)
        return ProbeError::unreadableOutput("no luck");
    return ProbeError::unreadableOutput(m_probeMood == Mood::lacksMemory ? std::bad_alloc().what()
                                                                         : "unknown error");
}

std::optional<ProbeError> ScanModelWalk::expectedOfStage() const
{
    if (m_stage == 0)
        return FolderAccess::checkSynchronously(m_scanned->url);
    if (m_stage == 1 && m_probeMood != Mood::works)
        return expectedOfProbe();
    if (m_stage == 2 && m_scannerFails)
        return ProbeError::unreadableOutput("the scanner failed");
    return std::nullopt;
}

} // namespace Loadwick
