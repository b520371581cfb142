#include <cstdint>
#include <limits>
#include <string>

#include "fuzz/FuzzTarget.h"
#include "fuzz/JsonOracle.h"
#include "fuzz/UsageOracle.h"
#include "probe/ProbeUsage.h"
#include "text/UnicodeText.h"
#include "json/JsonReader.h"

namespace Loadwick {

namespace {

/// No sum of two or three of them overflows 64 bits: overflow ends the program by design.
constexpr std::int64_t largestCount = std::numeric_limits<std::int64_t>::max() / 3;

bool isBounded(std::int64_t count)
{
    return count <= largestCount && count >= -largestCount;
}

void checkUsage(std::string_view input)
{
    const JsonOracle oracle = JsonOracle::of(input);
    if (!oracle.object)
        return;
    const std::string document = "{\"usage\":" + std::string(trimmed(input)) + "}";
    const auto read = jsonObject(document, {"usage"});
    require(read.has_value(), "an object may be a member");
    const auto usage = ProbeUsage::from(*member(*read, "usage"));
    require(usage == expectedUsage(&*oracle.object), "the usage follows the rule");
    if (!usage || !isBounded(usage->inputTokens) || !isBounded(usage->cacheCreationInputTokens) ||
        !isBounded(usage->cacheReadInputTokens))
        return;
    require(usage->startupTotal() - usage->cacheReadInputTokens - usage->cacheCreationInputTokens ==
                usage->inputTokens,
            "the total is the sum of the three input counts");
}

const FuzzTarget target("Usage", checkUsage);

} // namespace

} // namespace Loadwick
