#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "probe/SlabParser.h"
#include "text/NamedValue.h"

namespace Loadwick {

/// Where an authoritative total was read.
class TotalSource
{
public:
    enum Value
    {
        transcript,
        cliUsage
    };
    static constexpr std::array all{transcript, cliUsage};

    constexpr TotalSource(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    /// The case's name, as in persisted data.
    [[nodiscard]] std::string_view rawValue() const noexcept;
    [[nodiscard]] static std::optional<TotalSource> fromRawValue(std::string_view text) noexcept
    {
        return valueNamed<TotalSource>(text);
    }

    /// The phrase by which every text names the source.
    [[nodiscard]] std::string_view label() const noexcept;

private:
    Value m_value;
};

/// What one headless session yielded.
struct ProbeResult
{
    std::string sessionID;
    std::int64_t authoritativeTotal; ///< startup tokens
    TotalSource totalSource;
    SelfReportedSlabs selfReportedSlabs; ///< in output order
    double duration; ///< seconds from launch to the parsed result, without the transcript search
    std::string resolvedCLIPath; ///< the executable that was run, as text
    AnswerLines answerLines = {};

    friend bool operator==(const ProbeResult &, const ProbeResult &) = default;
};

/// Measures one repository. Blocking: call it off the interface thread.
class ProbeRunning
{
public:
    virtual ~ProbeRunning() = default;

    /// Throws `ProbeError`; another exception counts as unreadable output to the caller.
    [[nodiscard]] virtual ProbeResult run(const std::filesystem::path &repository) = 0;
};

} // namespace Loadwick
