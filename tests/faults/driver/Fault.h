#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "faults/shim/FaultPlan.h"

namespace Faults {

/// How often a call fails once it has failed.
enum class Mode
{
    once,
    always,
    burst ///< a hundred times, since no signal interrupts forever
};

/// One entry of the matrix: which call fails, in which operation, and how.
struct Fault
{
    std::string operation = {};
    Call call = Call::open;
    int errorNumber = 0;
    long nth = 1;
    Mode mode = Mode::once;

    /// "history-append,write,ENOSPC,3,once", as a replay reads it.
    [[nodiscard]] std::string text() const;
    [[nodiscard]] static std::optional<Fault> fromText(std::string_view text);

    /// A transient shortage (memory, descriptors), or an interruption.
    [[nodiscard]] bool isTransient() const;

    /// One interruption of a call that is to be repeated: it excuses nothing.
    [[nodiscard]] bool isToBeRepeated() const;

    /// Memory or threads have run out.
    [[nodiscard]] bool isShortageOfMemoryOrThreads() const;

    [[nodiscard]] long count() const;
};

/// A kind of call with the errors by which the system refuses it.
struct CallRefusals
{
    Call call;
    std::string_view name;
    std::span<const int> errorNumbers;
};

/// Every kind, in the order of `Call`.
[[nodiscard]] std::span<const CallRefusals> callRefusals();

[[nodiscard]] std::string_view nameOf(Call call);

/// Interruptions come in bursts, all other errors once or forever.
[[nodiscard]] std::span<const Mode> modesOf(int errorNumber);

} // namespace Faults
