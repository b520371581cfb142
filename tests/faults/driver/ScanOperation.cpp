#include <array>

#include "faults/driver/HistoryFixture.h"
#include "faults/driver/Operation.h"
#include "faults/driver/QueueDispatcher.h"
#include "faults/driver/SampleHome.h"
#include "model/ScanModel.h"
#include "probe/ClaudeCLILocator.h"
#include "probe/ProbeRunner.h"
#include "report/InstructionFileScanner.h"

namespace Faults {

namespace {

namespace fs = std::filesystem;
using Loadwick::ProbeError;
using Loadwick::ScanState;

/// The program's own settings, except short waits and a search that never leaves the home.
Loadwick::ProbeRunner::Settings settingsIn(const fs::path &home)
{
    auto settings = Loadwick::ProbeRunner::userSettings(Loadwick::currentEnvironment(), nullptr);
    settings.transcriptRetries = 3;
    settings.transcriptRetryDelay = 0.001;
    settings.limits.timeoutSeconds = 20;
    settings.lookup.isExecutable = [home, search = settings.lookup.isExecutable](const auto &path) {
        return path.starts_with(home.native() + "/") && search(path);
    };
    settings.lookup.loginShellLookup = [shell = SampleHome::writeShell(home).native()] {
        return Loadwick::ClaudeCLILocator::loginShellPath(shell, 10.0, nullptr);
    };
    return settings;
}

class WholeScan final : public Operation
{
public:
    explicit WholeScan(const fs::path &home)
        : m_history(home, HistoryFixture::Start::threeScans),
          m_repository(SampleHome::writeRepository(home)),
          m_dispatcher(std::make_shared<QueueDispatcher>())
    {
        SampleHome::writeTranscript(home);
        SampleHome::writeCommand(home);
        m_model = std::make_unique<Loadwick::ScanModel>(Loadwick::ScanModel::Collaborators{
            .probeRunner = std::make_shared<Loadwick::ProbeRunner>(settingsIn(home)),
            .instructionScanner = std::make_shared<Loadwick::InstructionFileScanner>(
                Loadwick::InstructionFileScanner::Settings{.home = home.native()}),
            .historyStore = std::make_unique<Loadwick::ScanHistoryStore>(m_history.folder()),
            .dispatcher = m_dispatcher});
        m_model->select(Loadwick::RepoSelection::fromUrl(m_repository));
    }

    void perform() override
    {
        m_model->scan();
        m_hasEnded = m_dispatcher->runUntil(
            [this] { return m_model->canScan() && m_model->isHistoryComplete(); }, 25.0);
    }

    std::optional<std::string> problem(Ending ending,
                                       const std::optional<Fault> &fault) const override
    {
        if (ending != Ending::returned || !m_hasEnded)
            return "the scan never ended";
        const ScanState::Case &state = m_model->state().get().value();
        if (const auto *const failed = std::get_if<ScanState::Failed>(&state))
            return problemOf(failed->error, fault);
        const auto *const result = std::get_if<ScanState::Result>(&state);
        if (result == nullptr)
            return "the scan ended without an outcome";
        const std::int64_t total = result->report.total;
        if (total != SampleHome::transcriptTotal && (!fault || total != SampleHome::resultTotal))
            return "another total: " + std::to_string(total);
        return m_history.problemAfterAppend(fault);
    }

private:
    std::optional<std::string> problemOf(const ProbeError &error,
                                         const std::optional<Fault> &fault) const
    {
        if (!fault)
            return "the scan failed: " + error.headline() + " " + error.detail();
        if (!m_history.isUntouched())
            return "a failed scan changed the history";
        // Listing a folder may itself run out of memory, which is reported as an unreadable folder.
        const bool isExpected =
            std::holds_alternative<ProbeError::UnreadableOutput>(error.value()) ||
            std::holds_alternative<ProbeError::RepositoryUnreadable>(error.value());
        if (fault->isShortageOfMemoryOrThreads() && !isExpected)
            return "a shortage of memory or threads ended as: " + error.headline();
        return std::nullopt;
    }

    HistoryFixture m_history;
    fs::path m_repository;
    std::shared_ptr<QueueDispatcher> m_dispatcher;
    std::unique_ptr<Loadwick::ScanModel> m_model;
    bool m_hasEnded = false;
};

std::unique_ptr<Operation> makeWholeScan(const fs::path &home)
{
    return std::make_unique<WholeScan>(home);
}

constexpr std::array kinds{
    OperationKind{.name = "whole-scan", .make = makeWholeScan, .isThreaded = true},
};

} // namespace

std::span<const OperationKind> scanOperations()
{
    return kinds;
}

} // namespace Faults
