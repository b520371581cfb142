#pragma once

#include <exception>
#include <string_view>
#include <utility>
#include <variant>

#include "probe/ProbeError.h"
#include "text/UnicodeText.h"

namespace Loadwick {

/// What one stage of a scan ended with: its value, or why there is none.
template<typename Value>
using ScanOutcome = std::variant<Value, ProbeError>;

/// What an exception says about itself, as the error of a scan. Never throws.
[[nodiscard]] inline ProbeError probeErrorFrom(const std::exception &error) noexcept
{
    try {
        return ProbeError::unreadableOutput(repairedUtf8(error.what()));
    } catch (const std::exception &) {
        return ProbeError::unreadableOutput("out of memory"); // short enough to need none
    }
}

/// Runs a stage. No exception leaves it: one that is no `ProbeError` counts as unreadable output.
template<typename Stage>
[[nodiscard]] auto scanOutcomeOf(Stage &stage) -> ScanOutcome<decltype(stage())>
{
    try {
        return stage();
    } catch (ProbeError &error) {
        return std::move(error); // its text may be a gigabyte long
    } catch (const std::exception &error) {
        return probeErrorFrom(error);
    } catch (...) {
        return ProbeError::unreadableOutput("unknown error");
    }
}

} // namespace Loadwick
