#pragma once

#include <exception>
#include <utility>
#include <variant>

#include "probe/ProbeError.h"
#include "report/ScanReport.h"

namespace Loadwick {

/// The state of the current or the last scan.
class ScanState
{
public:
    struct Idle
    {
        friend bool operator==(const Idle &, const Idle &) = default;
    };
    struct Scanning
    {
        friend bool operator==(const Scanning &, const Scanning &) = default;
    };
    struct Result
    {
        ScanReport report;
        friend bool operator==(const Result &, const Result &) = default;
    };
    struct Failed
    {
        ProbeError error;
        friend bool operator==(const Failed &, const Failed &) = default;
    };
    using Case = std::variant<Idle, Scanning, Result, Failed>;

    [[nodiscard]] static ScanState idle();
    [[nodiscard]] static ScanState scanning();
    [[nodiscard]] static ScanState result(ScanReport report);
    [[nodiscard]] static ScanState failed(ProbeError error);

    [[nodiscard]] const Case &value() const noexcept { return m_case; }
    [[nodiscard]] bool isScanning() const noexcept;

    friend bool operator==(const ScanState &, const ScanState &) = default;

private:
    explicit ScanState(Case value);

    Case m_case;
};

/// The end of one stage of a scan: its value, or why there is none.
template<typename Value>
using ScanOutcome = std::variant<Value, ProbeError>;

/// An exception's own text, as the error of a scan.
[[nodiscard]] ProbeError probeErrorFrom(const std::exception &error) noexcept;

/// Runs a stage. Never throws: any exception but a `ProbeError` counts as unreadable output.
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
