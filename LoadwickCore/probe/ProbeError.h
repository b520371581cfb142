#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Loadwick {

/// The one error of a scan. Every failure text that a user sees is computed here, from the case and
/// its payload; code that throws or catches it composes no text of its own.
class ProbeError
{
public:
    struct RepositoryUnreadable
    {
        std::string path;
        friend bool operator==(const RepositoryUnreadable &,
                               const RepositoryUnreadable &) = default;
    };
    struct CliNotFound
    {
        std::vector<std::string> searched; ///< in the order tried
        friend bool operator==(const CliNotFound &, const CliNotFound &) = default;
    };
    struct UnreadableOutput
    {
        std::string text;
        friend bool operator==(const UnreadableOutput &, const UnreadableOutput &) = default;
    };
    struct NoTranscript
    {
        std::string searchedRoot;
        friend bool operator==(const NoTranscript &, const NoTranscript &) = default;
    };
    struct SessionFailed
    {
        std::string text;
        friend bool operator==(const SessionFailed &, const SessionFailed &) = default;
    };
    struct MultiTurnUsageOnly
    {
        std::int64_t turns;
        friend bool operator==(const MultiTurnUsageOnly &, const MultiTurnUsageOnly &) = default;
    };
    struct NotAuthenticated
    {
        friend bool operator==(const NotAuthenticated &, const NotAuthenticated &) = default;
    };
    struct TimedOut
    {
        friend bool operator==(const TimedOut &, const TimedOut &) = default;
    };
    struct UnknownTurnCount
    {
        friend bool operator==(const UnknownTurnCount &, const UnknownTurnCount &) = default;
    };

    /// The cases in their declared order.
    using Case = std::variant<RepositoryUnreadable, CliNotFound, UnreadableOutput, NoTranscript,
                              SessionFailed, MultiTurnUsageOnly, NotAuthenticated, TimedOut,
                              UnknownTurnCount>;

    /// The greatest number of user-perceived characters of raw session text that a detail shows.
    static constexpr std::size_t detailLimit = 500;

    /// The greatest number of its bytes: one character may have millions of combining marks.
    static constexpr std::size_t detailByteLimit = 16 * 1024;

    [[nodiscard]] static ProbeError repositoryUnreadable(std::string path);
    [[nodiscard]] static ProbeError cliNotFound(std::vector<std::string> searched);
    [[nodiscard]] static ProbeError unreadableOutput(std::string text);
    [[nodiscard]] static ProbeError noTranscript(std::string searchedRoot);
    [[nodiscard]] static ProbeError sessionFailed(std::string text);
    [[nodiscard]] static ProbeError multiTurnUsageOnly(std::int64_t turns);
    [[nodiscard]] static ProbeError notAuthenticated();
    [[nodiscard]] static ProbeError timedOut();
    [[nodiscard]] static ProbeError unknownTurnCount();

    [[nodiscard]] const Case &value() const noexcept { return m_case; }

    /// One sentence per case.
    [[nodiscard]] std::string headline() const;

    /// The explanation, built from the payload. Raw session text is bounded to `detailLimit`.
    [[nodiscard]] std::string detail() const;

    /// What holds on this system where the detail speaks of another one; else nothing.
    [[nodiscard]] std::optional<std::string> platformNote() const;

    /// `text` trimmed of white space, "(no output)" when nothing is left, and truncated after
    /// `limit` user-perceived characters (grapheme clusters) or `detailByteLimit` bytes, whichever
    /// come first, with "…" appended.
    [[nodiscard]] static std::string bounded(std::string_view text, std::size_t limit);

    friend bool operator==(const ProbeError &, const ProbeError &) = default;

private:
    explicit ProbeError(Case value);

    Case m_case;
};

} // namespace Loadwick
