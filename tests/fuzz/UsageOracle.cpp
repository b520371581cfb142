#include "fuzz/UsageOracle.h"

#include <array>
#include <cstdint>

#include "fuzz/JsonOracle.h"

namespace Loadwick {

std::optional<ProbeUsage> expectedUsage(const nlohmann::json *value)
{
    constexpr std::array keys{"input_tokens", "cache_creation_input_tokens",
                              "cache_read_input_tokens", "output_tokens"};
    std::array<std::int64_t, keys.size()> counts{};
    bool hasCount = false;
    for (std::size_t index = 0; index < keys.size(); ++index) {
        const auto count = JsonOracle::integer(JsonOracle::find(value, keys[index]));
        counts[index] = count.value_or(0);
        hasCount = hasCount || (count && index < 3);
    }
    if (!hasCount)
        return std::nullopt;
    return ProbeUsage{counts[0], counts[1], counts[2], counts[3]};
}

} // namespace Loadwick
