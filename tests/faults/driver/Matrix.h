#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "faults/driver/Operation.h"

namespace Faults {

/// Every operation of the core.
[[nodiscard]] std::vector<OperationKind> allOperations();

/// Lets every call of every operation fail, one at a time, and counts the results.
class Matrix
{
public:
    /// Which part of the matrix is run.
    struct Extent
    {
        std::optional<std::string> operation = {}; ///< all when absent
        std::optional<std::string> call = {};      ///< the same for kinds of calls
        std::optional<unsigned> sampleSeed = {};   ///< everything when absent
        std::size_t sampleSize = 8;                ///< faults for each operation and kind of call
    };

    struct Score
    {
        long trials = 0;
        long failedCalls = 0;
        std::vector<std::string> problems; ///< one line each, beginning with the fault to replay
    };

    explicit Matrix(std::filesystem::path workFolder);

    [[nodiscard]] Score run(const Extent &extent);

    /// Tries one fault and prints the result.
    [[nodiscard]] bool replay(const Fault &fault);

private:
    void runAll(const OperationKind &kind, const Tally &counted, const Extent &extent);
    void runSample(const OperationKind &kind, const Tally &counted, const Extent &extent);
    [[nodiscard]] bool fails(const OperationKind &kind, const Fault &fault);
    /// How often each kind of call is made; nothing when the operation fails without a fault.
    [[nodiscard]] std::optional<Tally> countedIn(const OperationKind &kind);

    std::filesystem::path m_workFolder;
    Score m_score;
};

} // namespace Faults
