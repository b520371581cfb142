#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "probe/ProbeUsage.h"
#include "process/Deadline.h"

/// Reads the token usage of a session's first assistant message: what the model received before it
/// produced anything. Whatever cannot be read yields nothing.
namespace Loadwick::TranscriptReader {

/// Reads the JSON Lines file at `path` in pieces of 64 KiB and stops at the first line that yields
/// a usage. A malformed line, or one of more than 64 MiB, is skipped. No piece is read after
/// `deadline`.
[[nodiscard]] std::optional<ProbeUsage>
firstAssistantUsageAtPath(const std::filesystem::path &path, Deadline deadline = Deadline::max());

/// The same for a whole transcript in memory.
[[nodiscard]] std::optional<ProbeUsage> firstAssistantUsageIn(std::string_view text);

} // namespace Loadwick::TranscriptReader

namespace Loadwick {

/// Looks for the first usage of an assistant's message in a transcript that arrives in pieces, cut
/// anywhere. A line within one piece is parsed in place. A line across several pieces is not kept,
/// only its position and whether it may be an assistant's; if so, the whole line is read again.
class TranscriptPieces
{
public:
    /// A longer line is skipped.
    static constexpr std::size_t longestLine = std::size_t{64} << 20;

    /// Reads `size` bytes of the transcript again, from `begin` on; nothing when that fails.
    using Again = std::function<std::optional<std::string>(std::int64_t begin, std::size_t size)>;

    explicit TranscriptPieces(Again again) : m_again(std::move(again)) {}

    /// The first usage in the lines that `piece` completes. Do not call again once it returned one.
    [[nodiscard]] std::optional<ProbeUsage> take(std::string_view piece);

    /// The usage in the line that the transcript's end completes.
    [[nodiscard]] std::optional<ProbeUsage> finish() { return completeLine({}); }

    /// The usage of one line, which is a JSON object whose "type" is "assistant".
    [[nodiscard]] static std::optional<ProbeUsage> usageInLine(std::string_view line);

private:
    [[nodiscard]] std::optional<ProbeUsage> completeLine(std::string_view part);
    [[nodiscard]] std::optional<ProbeUsage> usageInLongLine(std::string_view lastPart);
    void pass(std::string_view part);

    Again m_again;
    std::int64_t m_lineBegin = 0;   ///< position of the incomplete line
    std::size_t m_lineSize = 0;     ///< its bytes so far
    bool m_mayBeAssistants = false; ///< judged by those bytes
    std::string m_end;              ///< their last few, where a word may begin
};

} // namespace Loadwick
