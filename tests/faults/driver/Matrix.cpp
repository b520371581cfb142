#include "faults/driver/Matrix.h"

#include <algorithm>
#include <cstdio>
#include <random>

#include "faults/driver/Trial.h"

namespace Faults {

namespace {

long countOf(const Tally &tally, Call call)
{
    return tally.matched.at(static_cast<std::size_t>(call));
}

bool isIn(const Matrix::Extent &extent, const CallRefusals &refusals)
{
    return !extent.call || *extent.call == refusals.name;
}

/// Each errno and mode of one kind of call, as the first call to fail.
std::vector<Fault> firstFaults(const OperationKind &kind, const CallRefusals &refusals)
{
    std::vector<Fault> faults;
    for (const int errorNumber : refusals.errorNumbers)
        for (const Mode mode : modesOf(errorNumber))
            faults.push_back({.operation = std::string(kind.name),
                              .call = refusals.call,
                              .errorNumber = errorNumber,
                              .mode = mode});
    return faults;
}

} // namespace

std::vector<OperationKind> allOperations()
{
    std::vector<OperationKind> all;
    for (const auto kinds : {historyOperations(), readingOperations(), textOperations(),
                             processOperations(), scanOperations()})
        all.insert(all.end(), kinds.begin(), kinds.end());
    return all;
}

Matrix::Matrix(std::filesystem::path workFolder) : m_workFolder(std::move(workFolder)) {}

Matrix::Score Matrix::run(const Extent &extent)
{
    m_score = {};
    for (const OperationKind &kind : allOperations()) {
        if (extent.operation && *extent.operation != kind.name)
            continue;
        const long before = m_score.failedCalls;
        const std::optional<Tally> counted = countedIn(kind);
        if (!counted)
            continue; // it fails without a fault, and every fault would only repeat that
        if (extent.sampleSeed)
            runSample(kind, *counted, extent);
        else
            runAll(kind, *counted, extent);
        std::printf("%s: %ld calls failed\n", std::string(kind.name).c_str(),
                    m_score.failedCalls - before);
        std::fflush(stdout);
    }
    return m_score;
}

bool Matrix::replay(const Fault &fault)
{
    for (const OperationKind &kind : allOperations()) {
        if (fault.operation != kind.name)
            continue;
        const Trial::Verdict verdict = Trial{.kind = kind, .fault = fault}.run(m_workFolder);
        std::printf("%s: %ld calls failed; %s\n", fault.text().c_str(), verdict.tally.failed,
                    verdict.problem.value_or("as it should be").c_str());
        return !verdict.problem;
    }
    std::printf("no such operation: %s\n", fault.operation.c_str());
    return false;
}

void Matrix::runAll(const OperationKind &kind, const Tally &counted, const Extent &extent)
{
    for (const CallRefusals &refusals : callRefusals())
        if (isIn(extent, refusals) && countOf(counted, refusals.call) > 0)
            for (Fault fault : firstFaults(kind, refusals))
                while (fails(kind, fault))
                    ++fault.nth;
}

void Matrix::runSample(const OperationKind &kind, const Tally &counted, const Extent &extent)
{
    std::mt19937 random(*extent.sampleSeed);
    for (const CallRefusals &refusals : callRefusals()) {
        if (!isIn(extent, refusals))
            continue;
        std::vector<Fault> faults;
        for (Fault fault : firstFaults(kind, refusals))
            for (; fault.nth <= countOf(counted, refusals.call); ++fault.nth)
                faults.push_back(fault);
        std::shuffle(faults.begin(), faults.end(), random);
        const auto interruption =
            std::find_if(faults.begin(), faults.end(),
                         [](const Fault &fault) { return fault.isToBeRepeated(); });
        if (interruption != faults.end())
            std::iter_swap(faults.begin(), interruption);
        // Memory fails in one way only, but at hundreds of call sites: sample more of them.
        const std::size_t size = extent.sampleSize * (refusals.call == Call::malloc ? 6 : 1);
        faults.resize(std::min(faults.size(), size));
        for (const Fault &fault : faults)
            (void)fails(kind, fault);
    }
}

bool Matrix::fails(const OperationKind &kind, const Fault &fault)
{
    const Trial::Verdict verdict = Trial{.kind = kind, .fault = fault}.run(m_workFolder);
    ++m_score.trials;
    m_score.failedCalls += verdict.tally.failed;
    if (verdict.problem)
        m_score.problems.push_back(fault.text() + ": " + *verdict.problem);
    // A crashed trial reports no counts; the next call may still be reached.
    return verdict.tally.failed > 0 || verdict.problem;
}

std::optional<Tally> Matrix::countedIn(const OperationKind &kind)
{
    const Trial::Verdict verdict = Trial{.kind = kind}.run(m_workFolder);
    if (!verdict.problem)
        return verdict.tally;
    m_score.problems.push_back(std::string(kind.name) + " without a fault: " + *verdict.problem);
    return std::nullopt;
}

} // namespace Faults
