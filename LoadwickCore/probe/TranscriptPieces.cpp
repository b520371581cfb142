#include "probe/TranscriptPieces.h"

#include "probe/JsonText.h"

namespace Loadwick {

namespace {

/// Comparing the value itself with a text would ask for memory where there is no way to say that
/// there is none.
bool isText(const nlohmann::json *value, std::string_view text)
{
    const auto *const found = value == nullptr ? nullptr : value->get_ptr<const std::string *>();
    return found != nullptr && *found == text;
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
    append(piece);
    return std::nullopt;
}

std::optional<ProbeUsage> TranscriptPieces::usageInLine(std::string_view line)
{
    const auto record = jsonObjectOfScalars(
        line, {"type", "message.usage.input_tokens", "message.usage.cache_creation_input_tokens",
               "message.usage.cache_read_input_tokens", "message.usage.output_tokens"});
    if (!record)
        return std::nullopt;
    const nlohmann::json *const type = member(*record, "type");
    const nlohmann::json *const message = member(*record, "message");
    if (!isText(type, "assistant") || message == nullptr)
        return std::nullopt;
    const nlohmann::json *const usage = member(*message, "usage");
    return usage != nullptr ? ProbeUsage::from(*usage) : std::nullopt;
}

std::optional<ProbeUsage> TranscriptPieces::completeLine(std::string_view tail)
{
    if (m_head.empty() && !m_isTooLong)
        return usageInLine(tail);
    append(tail);
    const auto usage = m_isTooLong ? std::nullopt : usageInLine(m_head);
    m_head.clear();
    m_isTooLong = false;
    return usage;
}

void TranscriptPieces::append(std::string_view part)
{
    m_isTooLong = m_isTooLong || m_head.size() + part.size() > longestLine;
    if (m_isTooLong)
        std::string().swap(m_head);
    else
        m_head.append(part);
}

} // namespace Loadwick
