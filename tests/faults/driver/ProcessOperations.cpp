#include <array>

#include "faults/driver/Operation.h"
#include "faults/driver/SampleHome.h"
#include "probe/ClaudeCLILocator.h"
#include "probe/ProbeError.h"
#include "probe/ProbeRunner.h"

namespace Faults {

namespace {

namespace fs = std::filesystem;

bool isShortageOfMemoryOrThreads(Ending ending, const std::optional<Fault> &fault)
{
    return fault && fault->isShortageOfMemoryOrThreads() &&
           (ending == Ending::outOfMemory || ending == Ending::systemError);
}

/// A reader that fails ends its stream there: what was read until then stays.
bool isFirstPart(std::string_view part, std::string_view whole, const std::optional<Fault> &fault)
{
    return fault ? whole.starts_with(part) : whole == part;
}

class Execute final : public Operation
{
public:
    explicit Execute(const fs::path &home)
    {
        m_launch.cli = home / "speaker";
        SampleHome::writeProgram(m_launch.cli,
                                 "#!/bin/sh\nprintf said\nprintf warned >&2\nexit 3\n");
        m_launch.repository = home;
        m_launch.environment = Loadwick::currentEnvironment();
    }

    void perform() override
    {
        try {
            m_execution = Loadwick::ProbeRunner::execute(m_launch);
        } catch (const Loadwick::ProbeError &error) {
            m_isUnreadable =
                std::holds_alternative<Loadwick::ProbeError::UnreadableOutput>(error.value());
            throw;
        }
    }

    std::optional<std::string> problem(Ending ending,
                                       const std::optional<Fault> &fault) const override
    {
        if (isShortageOfMemoryOrThreads(ending, fault))
            return std::nullopt;
        if (fault && ending == Ending::probeError && m_isUnreadable)
            return std::nullopt;
        if (ending != Ending::returned)
            return "the child was not started, for no stated reason";
        if (m_execution.exitCode != 3 || m_execution.timedOut)
            return "not the child's exit status";
        if (!fault && m_execution.readersTimedOut)
            return "a reader did not see the end of its stream";
        if (!isFirstPart(m_execution.standardOutput, "said", fault) ||
            !isFirstPart(m_execution.standardError, "warned", fault))
            return "not the child's output";
        return std::nullopt;
    }

private:
    Loadwick::ProbeRunner::Launch m_launch;
    Loadwick::Execution m_execution;
    bool m_isUnreadable = false;
};

class LoginShell final : public Operation
{
public:
    explicit LoginShell(const fs::path &home)
        : m_shell(SampleHome::writeShell(home)),
          m_answer((home / ".local/bin/claude").native() + "\n")
    {}

    void perform() override
    {
        m_found = Loadwick::ClaudeCLILocator::loginShellPath(m_shell, 10.0, nullptr);
    }

    std::optional<std::string> problem(Ending ending,
                                       const std::optional<Fault> &fault) const override
    {
        if (isShortageOfMemoryOrThreads(ending, fault))
            return std::nullopt;
        if (ending != Ending::returned)
            return "asking threw";
        if (m_found ? isFirstPart(*m_found, m_answer, fault) : fault.has_value())
            return std::nullopt;
        return "not the shell's answer";
    }

private:
    std::string m_shell;
    std::string m_answer;
    std::optional<std::string> m_found;
};

template<typename Made>
std::unique_ptr<Operation> make(const fs::path &home)
{
    return std::make_unique<Made>(home);
}

constexpr std::array kinds{
    OperationKind{"execute", make<Execute>},
    OperationKind{"login-shell", make<LoginShell>},
};

} // namespace

std::span<const OperationKind> processOperations()
{
    return kinds;
}

} // namespace Faults
