#include "support/TranscriptLines.h"

namespace Loadwick {

std::string assistantLine(std::int64_t inputTokens)
{
    return R"({"message":{"id":"m","usage":{"input_tokens":)" + std::to_string(inputTokens) +
           R"(,"output_tokens":1}},"uuid":"u","type":"assistant"})";
}

} // namespace Loadwick
