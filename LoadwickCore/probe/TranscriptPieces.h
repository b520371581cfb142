#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "probe/ProbeUsage.h"

namespace Loadwick {

/// Looks for the first usage of an assistant's message in a transcript that comes piece by piece,
/// wherever the pieces part it. A line is read where it lies in its piece. Of one that goes over
/// several pieces nothing is kept but its place and whether it may be an assistant's; only then is
/// it asked for once more, as a whole.
class TranscriptPieces
{
public:
    /// A longer line is skipped.
    static constexpr std::size_t longestLine = std::size_t{64} << 20;

    /// Gives `size` bytes of the transcript once more, from `begin` on; nothing when that fails.
    using Again = std::function<std::optional<std::string>(std::int64_t begin, std::size_t size)>;

    explicit TranscriptPieces(Again again) : m_again(std::move(again)) {}

    /// The usage in the lines that `piece` completes. Once there was one, it takes no more.
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
    std::int64_t m_lineBegin = 0;   // where the line that is not complete yet begins
    std::size_t m_lineSize = 0;     // what of it has passed
    bool m_mayBeAssistants = false; // by that
    std::string m_end;              // the end of that, with which a word may have begun
};

} // namespace Loadwick
