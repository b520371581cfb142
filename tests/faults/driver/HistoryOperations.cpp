#include <algorithm>
#include <array>

#include "faults/driver/HistoryFixture.h"
#include "faults/driver/Operation.h"
#include "history/ScanHistoryStore.h"

namespace Faults {

namespace {

namespace fs = std::filesystem;

class HistoryOperation : public Operation
{
protected:
    HistoryOperation(const fs::path &home, HistoryFixture::Start start)
        : m_fixture(home, start), m_store(m_fixture.folder())
    {}

    HistoryFixture m_fixture;
    Loadwick::ScanHistoryStore m_store;
};

class Load final : public HistoryOperation
{
public:
    explicit Load(const fs::path &home) : HistoryOperation(home, HistoryFixture::Start::threeScans)
    {}

    void perform() override { m_loaded = m_store.load(); }

    std::optional<std::string> problem(Ending ending,
                                       const std::optional<Fault> &fault) const override
    {
        if (ending != Ending::returned)
            return "loading threw";
        if (!m_fixture.isUntouched() || m_fixture.leftovers())
            return "loading changed the folder";
        if (m_loaded == m_fixture.scans() || (fault && m_loaded.empty()))
            return std::nullopt;
        return "loading returned only some of the scans";
    }

private:
    std::vector<Loadwick::RecordedScan> m_loaded;
};

class Append final : public HistoryOperation
{
public:
    Append(const fs::path &home, HistoryFixture::Start start) : HistoryOperation(home, start) {}

    void perform() override { m_list = m_store.append(m_scan); }

    std::optional<std::string> problem(Ending ending,
                                       const std::optional<Fault> &fault) const override
    {
        const bool mayThrow = fault && fault->call == Call::malloc;
        if (ending != Ending::returned && (ending != Ending::outOfMemory || !mayThrow))
            return "recording threw";
        if (ending == Ending::returned && (m_list.empty() || m_list.back() != m_scan))
            return "the list lacks the new scan";
        return m_fixture.problemAfterAppend(fault);
    }

private:
    const Loadwick::RecordedScan m_scan = sampleScan(4);
    std::vector<Loadwick::RecordedScan> m_list;
};

class Clear final : public HistoryOperation
{
public:
    explicit Clear(const fs::path &home) : HistoryOperation(home, HistoryFixture::Start::threeScans)
    {}

    void perform() override { m_store.clear(); }

    std::optional<std::string> problem(Ending ending,
                                       const std::optional<Fault> &fault) const override
    {
        if (ending != Ending::returned)
            return "clearing threw";
        return m_fixture.problemAfterClear(fault);
    }
};

template<typename Made>
std::unique_ptr<Operation> make(const fs::path &home)
{
    return std::make_unique<Made>(home);
}

template<HistoryFixture::Start start>
std::unique_ptr<Operation> makeAppend(const fs::path &home)
{
    return std::make_unique<Append>(home, start);
}

constexpr auto *appendToThree = makeAppend<HistoryFixture::Start::threeScans>;
constexpr auto *appendBesideRemains = makeAppend<HistoryFixture::Start::threeScansAndRemains>;
constexpr auto *appendFirst = makeAppend<HistoryFixture::Start::nothing>;

constexpr std::array kinds{
    OperationKind{"history-load", make<Load>},
    OperationKind{"history-append", appendToThree},
    OperationKind{"history-append-file", appendToThree, HistoryFixture::relativePath},
    OperationKind{"history-append-remains", appendBesideRemains},
    OperationKind{"history-append-first", appendFirst},
    OperationKind{"history-clear", make<Clear>},
};

} // namespace

std::span<const OperationKind> historyOperations()
{
    return kinds;
}

} // namespace Faults
