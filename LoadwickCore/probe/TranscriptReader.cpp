#include "probe/TranscriptReader.h"

#include <array>
#include <cstddef>
#include <string>

#include "probe/JsonText.h"
#include "probe/RegularFile.h"
#include "probe/TextLines.h"

namespace Loadwick::TranscriptReader {

namespace {

constexpr std::size_t pieceSize = 65536;
constexpr std::size_t longestLine = 64U << 20;

std::optional<ProbeUsage> usageInLine(std::string_view line)
{
    const auto record = jsonObjectOfScalars(
        line, {"type", "message.usage.input_tokens", "message.usage.cache_creation_input_tokens",
               "message.usage.cache_read_input_tokens", "message.usage.output_tokens"});
    if (!record)
        return std::nullopt;
    const nlohmann::json *const type = member(*record, "type");
    const nlohmann::json *const message = member(*record, "message");
    if (type == nullptr || *type != "assistant" || message == nullptr)
        return std::nullopt;
    const nlohmann::json *const usage = member(*message, "usage");
    return usage != nullptr ? ProbeUsage::from(*usage) : std::nullopt;
}

/// Puts lines together from pieces of a file. Each byte is searched for a line feed once, and only
/// the part of a line that earlier pieces held is ever copied.
class LineAssembly
{
public:
    /// The first usage in the lines that `piece` completes.
    std::optional<ProbeUsage> take(std::string_view piece)
    {
        for (std::size_t end = piece.find('\n'); end != std::string_view::npos;
             end = piece.find('\n')) {
            if (const auto usage = completeLine(piece.substr(0, end)))
                return usage;
            piece.remove_prefix(end + 1);
        }
        append(piece);
        return std::nullopt;
    }

    /// The usage in the line that the file's end completes.
    std::optional<ProbeUsage> completeLine(std::string_view tail)
    {
        if (m_head.empty() && !m_isTooLong)
            return usageInLine(tail);
        append(tail);
        const auto usage = m_isTooLong ? std::nullopt : usageInLine(m_head);
        m_head.clear();
        m_isTooLong = false;
        return usage;
    }

private:
    void append(std::string_view part)
    {
        m_isTooLong = m_isTooLong || m_head.size() + part.size() > longestLine;
        if (m_isTooLong)
            std::string().swap(m_head);
        else
            m_head.append(part);
    }

    std::string m_head;
    bool m_isTooLong = false;
};

} // namespace

std::optional<ProbeUsage> firstAssistantUsageAtPath(const std::filesystem::path &path)
{
    auto file = RegularFile::open(path);
    if (!file)
        return std::nullopt;
    LineAssembly lines;
    std::array<char, pieceSize> buffer;
    for (;;) {
        const auto count = file->read(buffer);
        if (!count)
            return std::nullopt;
        if (*count == 0)
            return lines.completeLine({});
        if (const auto usage = lines.take({buffer.data(), *count}))
            return usage;
    }
}

std::optional<ProbeUsage> firstAssistantUsageIn(std::string_view text)
{
    while (const auto line = takeLine(text))
        if (const auto usage = usageInLine(*line))
            return usage;
    return std::nullopt;
}

} // namespace Loadwick::TranscriptReader
