#include <string>
#include <utility>
#include <variant>

#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/JsonOracle.h"
#include "fuzz/UsageOracle.h"
#include "probe/ProbeError.h"
#include "probe/ProbeOutputParser.h"
#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

/// The streams and the status of an ended session: the status and standard error on the first line,
/// then standard output.
struct Ended
{
    std::int32_t exitCode;
    std::string_view standardError;
    std::string_view standardOutput;
};

using Outcome = std::variant<ProbeOutput, ProbeError>;

Outcome parsed(const Ended &ended)
{
    try {
        return ProbeOutputParser::parse(ended.standardOutput, ended.standardError, ended.exitCode);
    } catch (const ProbeError &error) {
        return error;
    }
}

bool complains(std::string_view text)
{
    const std::string lower = lowercased(text);
    for (const char *complaint : {"failed to authenticate", "oauth session expired",
                                  "please run /login", "invalid api key"})
        if (lower.find(complaint) != std::string::npos)
            return true;
    return false;
}

ProbeError unreadable(std::string_view text)
{
    return ProbeError::unreadableOutput(ProbeError::bounded(text, 500));
}

Outcome withoutObject(const Ended &ended)
{
    const std::string both =
        std::string(ended.standardError) + "\n" + std::string(ended.standardOutput);
    if (ended.exitCode != 0 && complains(both))
        return ProbeError::notAuthenticated();
    const bool isBlank = trimmed(ended.standardOutput).empty();
    return unreadable(isBlank ? ended.standardError : ended.standardOutput);
}

Outcome expected(const Ended &ended, const JsonOracle &oracle)
{
    if (!oracle.object)
        return withoutObject(ended);
    const nlohmann::json *const object = &*oracle.object;
    const std::string result = JsonOracle::text(JsonOracle::find(object, "result")).value_or("");
    const nlohmann::json *const isError = JsonOracle::find(object, "is_error");
    if (isError != nullptr && *isError == nlohmann::json(true)) {
        if (complains(result))
            return ProbeError::notAuthenticated();
        return ProbeError::sessionFailed(result.empty() ? "The session reported is_error."
                                                        : result);
    }
    const auto session = JsonOracle::text(JsonOracle::find(object, "session_id"));
    if (!session || session->empty())
        return unreadable(ended.standardOutput);
    return ProbeOutput{.sessionID = *session,
                       .result = result,
                       .usage = expectedUsage(JsonOracle::find(object, "usage"))};
}

void checkCLIResult(std::string_view bytes)
{
    FuzzInput input(bytes);
    const auto exitCode = static_cast<std::int32_t>(input.takeInteger(255));
    const std::string_view standardError = input.takeLine();
    const Ended ended{exitCode, standardError, input.rest()};
    const Outcome outcome = parsed(ended);
    const JsonOracle oracle = JsonOracle::of(ended.standardOutput);
    require(!oracle.isJudge || outcome == expected(ended, oracle),
            "the result follows the rules for the whole document");
    if (const auto *const error = std::get_if<ProbeError>(&outcome))
        require(!isUtf8(bytes) || isUtf8(error->headline() + error->detail()),
                "an error's text is UTF-8");
}

const FuzzTarget target("CLIResult", checkCLIResult);

} // namespace

} // namespace Loadwick
