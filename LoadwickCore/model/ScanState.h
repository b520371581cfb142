#pragma once

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

} // namespace Loadwick
