#include <algorithm>
#include <array>
#include <cerrno>

#include "faults/driver/Operation.h"
#include "faults/driver/SampleHome.h"
#include "history/WeeklyKPIReader.h"
#include "posix/FileSystem.h"
#include "probe/TranscriptLocator.h"
#include "probe/TranscriptReader.h"
#include "report/InstructionFileScanner.h"

namespace Faults {

namespace {

namespace fs = std::filesystem;

bool isWantOfMemory(Ending ending, const std::optional<Fault> &fault)
{
    return fault && fault->call == Call::malloc && ending == Ending::outOfMemory;
}

class InstructionScan final : public Operation
{
public:
    explicit InstructionScan(const fs::path &home)
        : m_home(home),
          m_repository(SampleHome::writeRepository(home)),
          m_scanner({.home = home.native()})
    {}

    void perform() override { m_found = m_scanner.scan(m_repository); }

    std::optional<std::string> problem(Ending ending,
                                       const std::optional<Fault> &fault) const override
    {
        const bool mayThrow = fault && fault->isShortageOfMemoryOrThreads();
        if (ending != Ending::returned)
            return mayThrow && (ending == Ending::systemError || ending == Ending::outOfMemory)
                       ? std::nullopt
                       : std::optional<std::string>("the scan threw");
        for (const auto &file : m_found.allFiles())
            if (!isOurs(file.path) || file.byteCount == 0)
                return "a nonexistent file: " + file.path;
        for (const std::string &path : m_found.unreadablePaths)
            if (!path.starts_with(m_home.native()))
                return "unreadable, but never looked for: " + path;
        const bool isDenial = fault && fault->errorNumber == EACCES && fault->mode == Mode::once;
        const bool isExcused = fault && (!isDenial || !m_found.unreadablePaths.empty());
        if (!isExcused && m_found.allFiles().size() != names.size())
            return "files are missing";
        return std::nullopt;
    }

private:
    static constexpr std::array names{"src/webshop/CLAUDE.md", "src/webshop/docs/style.md",
                                      "src/webshop/docs/tests.md", "src/CLAUDE.md",
                                      ".claude/CLAUDE.md"};

    bool isOurs(const std::string &path) const
    {
        return std::any_of(names.begin(), names.end(),
                           [&](const char *name) { return m_home / name == path; });
    }

    fs::path m_home;
    fs::path m_repository;
    Loadwick::InstructionFileScanner m_scanner;
    Loadwick::InstructionFileSet m_found;
};

class Transcript final : public Operation
{
public:
    explicit Transcript(const fs::path &home) : m_root(SampleHome::writeTranscript(home)) {}

    void perform() override
    {
        const Loadwick::PosixFileSystem disk;
        const auto path = Loadwick::TranscriptLocator::find(SampleHome::sessionID, m_root, disk);
        if (path)
            m_usage = Loadwick::TranscriptReader::firstAssistantUsageAtPath(*path);
    }

    std::optional<std::string> problem(Ending ending,
                                       const std::optional<Fault> &fault) const override
    {
        if (isWantOfMemory(ending, fault))
            return std::nullopt;
        if (ending != Ending::returned)
            return "reading threw";
        if (m_usage ? m_usage->startupTotal() == SampleHome::transcriptTotal : fault.has_value())
            return std::nullopt;
        return "not the transcript's usage";
    }

private:
    fs::path m_root;
    std::optional<Loadwick::ProbeUsage> m_usage;
};

class WeeklyLog final : public Operation
{
public:
    explicit WeeklyLog(const fs::path &home)
        : m_path(Loadwick::WeeklyKPIReader::defaultPath(home.native()))
    {
        SampleHome::write(m_path, "{\"median_tokens_per_session\":1,\"tokens_per_pr\":1}\n"
                                  "{\"median_tokens_per_session\":7,\"tokens_per_pr\":8}\n");
    }

    void perform() override { m_line = Loadwick::WeeklyKPIReader::read(m_path, endSize); }

    std::optional<std::string> problem(Ending ending,
                                       const std::optional<Fault> &fault) const override
    {
        if (isWantOfMemory(ending, fault))
            return std::nullopt;
        if (ending != Ending::returned)
            return "reading threw";
        if (m_line ? m_line->medianTokensPerSession == 7 : fault.has_value())
            return std::nullopt;
        return "not the last line";
    }

private:
    static constexpr std::size_t endSize = 80; // less than both lines, so that only the end is read

    fs::path m_path;
    std::optional<Loadwick::WeeklyKPILine> m_line;
};

template<typename Made>
std::unique_ptr<Operation> make(const fs::path &home)
{
    return std::make_unique<Made>(home);
}

constexpr std::array kinds{
    OperationKind{"instruction-scan", make<InstructionScan>},
    OperationKind{"transcript", make<Transcript>},
    OperationKind{"weekly-log", make<WeeklyLog>},
};

} // namespace

std::span<const OperationKind> readingOperations()
{
    return kinds;
}

} // namespace Faults
