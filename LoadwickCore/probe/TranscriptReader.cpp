#include "probe/TranscriptReader.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "posix/RegularFile.h"
#include "text/TextLines.h"
#include "json/JsonReader.h"

namespace Loadwick {

namespace {

constexpr std::size_t pieceSize = 65536;
constexpr std::string_view assistant = "assistant";
constexpr std::size_t overlap = assistant.size() - 1;

/// Whether a line with this text may be an assistant's message: its type holds "ssis", which JSON
/// can spell in no other way than with \u. This rules out nearly every other line without parsing
/// it. Not stopping at a match lets the compiler vectorise the loop.
bool mayBeAssistants(std::string_view text) noexcept
{
    const auto is = [](char byte, char wanted) { return static_cast<unsigned>(byte == wanted); };
    unsigned char found = 0;
    for (std::size_t index = 0; index + 3 < text.size(); ++index) {
        const unsigned isEscape = is(text[index], '\\') & is(text[index + 1], 'u');
        const unsigned isPart = is(text[index], 's') & is(text[index + 1], 's') &
                                is(text[index + 2], 'i') & is(text[index + 3], 's');
        found |= static_cast<unsigned char>(isEscape | isPart);
    }
    return found != 0;
}

} // namespace

std::optional<ProbeUsage> TranscriptPieces::take(std::string_view piece)
{
    for (std::size_t end = piece.find('\n'); end != std::string_view::npos;
         end = piece.find('\n')) {
        if (const auto usage = completeLine(piece.substr(0, end)))
            return usage;
        piece.remove_prefix(end + 1);
    }
    pass(piece);
    return std::nullopt;
}

std::optional<ProbeUsage> TranscriptPieces::usageInLine(std::string_view line)
{
    if (!mayBeAssistants(line))
        return std::nullopt;
    const auto record = jsonObjectOfScalars(
        line, {"type", "message.usage.input_tokens", "message.usage.cache_creation_input_tokens",
               "message.usage.cache_read_input_tokens", "message.usage.output_tokens"});
    if (!record)
        return std::nullopt;
    const std::string *const type = textOf(member(*record, "type"));
    const JsonValue *const message = member(*record, "message");
    if (type == nullptr || *type != assistant || message == nullptr)
        return std::nullopt;
    const JsonValue *const usage = member(*message, "usage");
    return usage != nullptr ? ProbeUsage::from(*usage) : std::nullopt;
}

std::optional<ProbeUsage> TranscriptPieces::completeLine(std::string_view part)
{
    const std::size_t size = m_lineSize + part.size();
    const auto usage = m_lineSize == 0 ? usageInLine(part) : usageInLongLine(part);
    m_lineBegin += static_cast<std::int64_t>(size) + 1;
    m_lineSize = 0;
    m_mayBeAssistants = false;
    m_end.clear();
    return usage;
}

std::optional<ProbeUsage> TranscriptPieces::usageInLongLine(std::string_view lastPart)
{
    pass(lastPart);
    if (!m_mayBeAssistants || m_lineSize > longestLine)
        return std::nullopt;
    const auto line = m_again(m_lineBegin, m_lineSize);
    return line ? usageInLine(*line) : std::nullopt;
}

void TranscriptPieces::pass(std::string_view part)
{
    m_lineSize += part.size();
    if (m_mayBeAssistants)
        return;
    m_end.append(part.substr(0, overlap));
    m_mayBeAssistants = mayBeAssistants(m_end) || mayBeAssistants(part);
    if (part.size() > overlap)
        m_end = part.substr(part.size() - overlap);
    m_end.erase(0, m_end.size() - std::min(m_end.size(), overlap));
}

namespace TranscriptReader {

std::optional<ProbeUsage> firstAssistantUsageAtPath(const std::filesystem::path &path,
                                                    Deadline deadline)
{
    auto file = RegularFile::open(path);
    if (!file)
        return std::nullopt;
    std::int64_t position = 0;
    TranscriptPieces pieces([&](std::int64_t begin, std::size_t size) {
        auto line = file->skipTo(begin) ? file->readUpTo(size) : std::nullopt;
        return file->skipTo(position) ? line : std::nullopt;
    });
    std::array<char, pieceSize> buffer;
    while (std::chrono::steady_clock::now() < deadline) {
        const auto count = file->read(buffer);
        if (!count)
            return std::nullopt;
        position += static_cast<std::int64_t>(*count);
        if (*count == 0)
            return pieces.finish();
        if (const auto usage = pieces.take({buffer.data(), *count}))
            return usage;
    }
    return std::nullopt;
}

std::optional<ProbeUsage> firstAssistantUsageIn(std::string_view text)
{
    while (const auto line = takeLine(text))
        if (const auto usage = TranscriptPieces::usageInLine(*line))
            return usage;
    return std::nullopt;
}

} // namespace TranscriptReader

} // namespace Loadwick
