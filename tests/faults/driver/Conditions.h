#pragma once

#include <filesystem>
#include <functional>
#include <span>
#include <string_view>

namespace Faults {

/// A condition of the system around a process under which everything must still succeed.
struct Condition
{
    std::string_view name;
    void (*begin)();
    void (*end)() = nullptr;
    /// From outside, once the process has begun.
    void (*disturb)(int processID) = nullptr;
};

[[nodiscard]] std::span<const Condition> conditions();

/// Performs every operation under every condition and reports on standard output. Returns the
/// number of failures.
[[nodiscard]] long runUnderConditions(const std::filesystem::path &workFolder);

} // namespace Faults
