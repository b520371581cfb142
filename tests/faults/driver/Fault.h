#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "faults/shim/FaultPlan.h"

namespace Faults {

/// How often a call fails that has begun to.
enum class Mode
{
    once,
    always,
    burst ///< a hundred times, as no signal interrupts without end
};

/// One entry of the matrix: which call fails, in which operation, and how.
struct Fault
{
    std::string operation = {};
    Call call = Call::open;
    int errorNumber = 0;
    long nth = 1;
    Mode mode = Mode::once;

    /// "history-append,write,ENOSPC,3,once", which is also what is read for a replay.
    [[nodiscard]] std::string text() const;
    [[nodiscard]] static std::optional<Fault> fromText(std::string_view text);

    /// A want that passes: of memory, of descriptors, of quiet.
    [[nodiscard]] bool isPassing() const;

    /// There is no memory, or no thread, to be had.
    [[nodiscard]] bool isWantOfMemoryOrThread() const;

    [[nodiscard]] long count() const;
};

/// A kind of call with the reasons for which the system refuses it.
struct CallRefusals
{
    Call call;
    std::string_view name;
    std::span<const int> errorNumbers;
};

/// Every kind, in the order of `Call`.
[[nodiscard]] std::span<const CallRefusals> callRefusals();

[[nodiscard]] std::string_view nameOf(Call call);

/// Interruptions come in bursts, everything else once or from then on.
[[nodiscard]] std::span<const Mode> modesOf(int errorNumber);

} // namespace Faults
