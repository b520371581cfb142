#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "faults/driver/Fault.h"

namespace Faults {

/// How an operation ended.
enum class Ending
{
    returned,
    probeError,
    systemError,
    outOfMemory,
    otherwise ///< by an exception that no operation may throw
};

/// One operation of the core, over files of its own in a throw-away home.
class Operation
{
public:
    virtual ~Operation() = default;

    /// Performs the operation once, while calls fail.
    virtual void perform() = 0;

    /// What is wrong with the outcome, if anything. Without a `fault`, only complete success is
    /// right.
    [[nodiscard]] virtual std::optional<std::string>
    problem(Ending ending, const std::optional<Fault> &fault) const = 0;
};

/// How to make an operation in an empty home folder, before any call fails.
struct OperationKind
{
    std::string_view name;
    std::unique_ptr<Operation> (*make)(const std::filesystem::path &home);
    std::string_view watched = {}; ///< only calls on this path in the home fail; empty for all
    bool isThreaded = false;       ///< memory is needed in the background only
};

/// Operations on the history file, other files, texts and processes, and the whole scan.
[[nodiscard]] std::span<const OperationKind> historyOperations();
[[nodiscard]] std::span<const OperationKind> readingOperations();
[[nodiscard]] std::span<const OperationKind> textOperations();
[[nodiscard]] std::span<const OperationKind> processOperations();
[[nodiscard]] std::span<const OperationKind> scanOperations();

} // namespace Faults
