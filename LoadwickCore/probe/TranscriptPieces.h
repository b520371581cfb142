#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "probe/ProbeUsage.h"

namespace Loadwick {

/// Looks for the first usage of an assistant's message in a transcript that comes piece by piece,
/// wherever the pieces part it. Each byte is searched for a line feed once, and only the part of a
/// line that earlier pieces held is ever copied.
class TranscriptPieces
{
public:
    /// A longer line is skipped.
    static constexpr std::size_t longestLine = std::size_t{64} << 20;

    /// The usage in the lines that `piece` completes. Once there was one, it takes no more.
    [[nodiscard]] std::optional<ProbeUsage> take(std::string_view piece);

    /// The usage in the line that the transcript's end completes.
    [[nodiscard]] std::optional<ProbeUsage> finish() { return completeLine({}); }

    /// The usage of one line, which is a JSON object whose "type" is "assistant".
    [[nodiscard]] static std::optional<ProbeUsage> usageInLine(std::string_view line);

private:
    [[nodiscard]] std::optional<ProbeUsage> completeLine(std::string_view tail);
    void append(std::string_view part);

    std::string m_head; // of the line that is not complete yet
    bool m_isTooLong = false;
};

} // namespace Loadwick
