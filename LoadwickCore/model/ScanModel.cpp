#include "model/ScanModel.h"

#include <new>
#include <optional>
#include <utility>
#include <variant>

#include "model/HistoryKeeper.h"
#include "probe/FolderAccess.h"
#include "report/ScanReport.h"
#include "text/Fatal.h"
#include "text/UnicodeText.h"

namespace Loadwick {

const std::string_view ScanModel::allowanceDisclosure =
    "Scanning starts one real Claude Code session in this folder and uses a small part of your "
    "Claude allowance.";

/// The values and the stages of a scan. A stage runs in the background on copies and shared
/// collaborators alone; its outcome is posted as a value, and dropped if the model is gone.
class ScanModel::Internals : public std::enable_shared_from_this<Internals>
{
public:
    explicit Internals(Collaborators collaborators);

    [[nodiscard]] bool isScanning() const noexcept;
    [[nodiscard]] HistoryKeeper &keeper() const noexcept { return *m_keeper; }
    void begin();

    Published<ScanState> state{ScanState::idle()};
    Published<std::optional<RepoSelection>> selection{std::nullopt};

private:
    void checkFolder(const RepoSelection &chosen);
    void runProbe(const RepoSelection &chosen);
    void makeReport(const RepoSelection &chosen, const ProbeResult &probe);

    void succeed(const ScanReport &report);
    void end(ScanState outcome);

    template<typename Stage, typename Next>
    void run(Stage stage, Next next);

    const Collaborators m_with;
    const std::shared_ptr<HistoryKeeper> m_keeper;
    /// A scan runs. Set before the state changes, so that its observers cannot start another.
    bool m_isUnderway = false;
};

ScanModel::Internals::Internals(Collaborators collaborators)
    : m_with(std::move(collaborators)),
      m_keeper(std::make_shared<HistoryKeeper>(m_with.historyStore, m_with.dispatcher))
{
    if (!m_with.probeRunner || !m_with.instructionScanner || !m_with.dispatcher || !m_with.now)
        fatalError("a scan model lacks a collaborator");
    if (m_with.loadsHistoryAtOnce)
        m_keeper->load();
}

bool ScanModel::Internals::isScanning() const noexcept
{
    return m_isUnderway || state.get().isScanning();
}

void ScanModel::Internals::begin()
{
    const RepoSelection chosen = selection.get().value();
    m_isUnderway = true;
    state.set(ScanState::scanning());
    checkFolder(chosen);
}

void ScanModel::Internals::checkFolder(const RepoSelection &chosen)
{
    const auto stage = [repository = chosen.url]() -> std::monostate {
        if (const std::optional<ProbeError> error = FolderAccess::preflight(repository))
            throw ProbeError(*error);
        return {};
    };
    run(stage, [chosen](Internals &self, std::monostate) { self.runProbe(chosen); });
}

void ScanModel::Internals::runProbe(const RepoSelection &chosen)
{
    const auto stage = [runner = m_with.probeRunner, repository = chosen.url] {
        return runner->run(repository);
    };
    run(stage,
        [chosen](Internals &self, const ProbeResult &probe) { self.makeReport(chosen, probe); });
}

void ScanModel::Internals::makeReport(const RepoSelection &chosen, const ProbeResult &probe)
{
    const auto stage = [scanner = m_with.instructionScanner, chosen, probe] {
        return ScanReportBuilder::build(chosen, probe, scanner->scan(chosen.url));
    };
    run(stage, [](Internals &self, const ScanReport &report) { self.succeed(report); });
}

void ScanModel::Internals::succeed(const ScanReport &report)
{
    try {
        // First: who hears of the result must not take an earlier scan's record for its own.
        m_keeper->record(RecordedScan::fromReport(report, m_with.now(), Uuid::random()));
    } catch (const std::bad_alloc &) {
        // Not recorded: the earlier scans remain, on disk and on the pages.
    }
    end(ScanState::result(report));
}

void ScanModel::Internals::end(ScanState outcome)
{
    m_isUnderway = false;
    state.set(std::move(outcome));
}

template<typename Stage, typename Next>
void ScanModel::Internals::run(Stage stage, Next next)
{
    try {
        // Allocates and loads everything that delivering and wording the outcome needs: memory may
        // have run out after the stage.
        loadCharacterRules();
        const auto outcome = std::make_shared<std::optional<decltype(scanOutcomeOf(stage))>>();
        TaskDispatcher::Task arrival = [weak = weak_from_this(), next, outcome] {
            const std::shared_ptr<Internals> self = weak.lock();
            if (!self)
                return;
            if (auto *const error = std::get_if<ProbeError>(&**outcome))
                self->end(ScanState::failed(std::move(*error)));
            else
                next(*self, std::get<0>(**outcome));
        };
        m_with.dispatcher->runInBackground([stage = std::move(stage), outcome,
                                            dispatcher = m_with.dispatcher,
                                            arrival = std::move(arrival)]() mutable {
            outcome->emplace(scanOutcomeOf(stage));
            dispatcher->postToInterface(std::move(arrival));
        });
    } catch (const std::exception &error) {
        end(ScanState::failed(probeErrorFrom(error)));
    }
}

ScanModel::ScanModel(Collaborators collaborators)
    : m_internals(std::make_shared<Internals>(std::move(collaborators)))
{}

ScanModel::~ScanModel() = default;

Published<ScanState> &ScanModel::state() noexcept
{
    return m_internals->state;
}

Published<std::optional<RepoSelection>> &ScanModel::selection() noexcept
{
    return m_internals->selection;
}

Published<std::vector<RecordedScan>> &ScanModel::history() noexcept
{
    return m_internals->keeper().history();
}

bool ScanModel::canScan() const noexcept
{
    return m_internals->selection.get().has_value() && !m_internals->isScanning();
}

void ScanModel::loadHistory()
{
    m_internals->keeper().load();
}

bool ScanModel::isHistoryComplete() const noexcept
{
    return m_internals->keeper().isComplete();
}

bool ScanModel::canClearHistory() const noexcept
{
    HistoryKeeper &keeper = m_internals->keeper();
    return keeper.store() != nullptr && !keeper.history().get().empty();
}

std::optional<std::filesystem::path> ScanModel::historyFile() const
{
    const ScanHistoryStore *store = m_internals->keeper().store();
    return store != nullptr ? std::optional(store->fileURL()) : std::nullopt;
}

void ScanModel::select(const RepoSelection &selection)
{
    if (m_internals->isScanning())
        return;
    m_internals->selection.set(selection);
    m_internals->state.set(ScanState::idle());
}

void ScanModel::scan()
{
    if (canScan())
        m_internals->begin();
}

void ScanModel::clearHistory()
{
    m_internals->keeper().clear();
}

void ScanModel::finishHistory() const
{
    m_internals->keeper().finish();
}

} // namespace Loadwick
