#include "probe/ProbeUsage.h"

#include "text/Fatal.h"
#include "json/JsonValue.h"

namespace Loadwick {

std::optional<ProbeUsage> ProbeUsage::from(const JsonValue &object)
{
    const auto count = [&](std::string_view key) { return exactInteger(member(object, key)); };
    const auto input = count("input_tokens");
    const auto cacheCreation = count("cache_creation_input_tokens");
    const auto cacheRead = count("cache_read_input_tokens");
    if (!input && !cacheCreation && !cacheRead)
        return std::nullopt;
    return ProbeUsage{.inputTokens = input.value_or(0),
                      .cacheCreationInputTokens = cacheCreation.value_or(0),
                      .cacheReadInputTokens = cacheRead.value_or(0),
                      .outputTokens = count("output_tokens").value_or(0)};
}

std::int64_t ProbeUsage::startupTotal() const noexcept
{
    return checkedSum(checkedSum(inputTokens, cacheCreationInputTokens), cacheReadInputTokens);
}

} // namespace Loadwick
