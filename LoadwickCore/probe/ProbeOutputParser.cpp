#include "probe/ProbeOutputParser.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <utility>

#include "probe/ProbeError.h"
#include "text/UnicodeText.h"
#include "json/JsonReader.h"

namespace Loadwick::ProbeOutputParser {

namespace {

constexpr std::array<std::string_view, 4> signInComplaints{
    "failed to authenticate", "oauth session expired", "please run /login", "invalid api key"};

/// An answer may be a gigabyte long, so it is searched in pieces. Neighbouring pieces share more
/// bytes than any complaint has, even spelled with letters of four bytes.
constexpr std::size_t pieceSize = 65536;
constexpr std::size_t sharedSize = 128;

/// The members that are read; the reader drops all others.
std::optional<JsonValue> recordIn(std::string_view standardOutput)
{
    return jsonObjectOfScalars(standardOutput,
                               {"session_id", "result", "is_error", "usage.input_tokens",
                                "usage.cache_creation_input_tokens",
                                "usage.cache_read_input_tokens", "usage.output_tokens"});
}

bool holdsComplaint(std::string_view piece)
{
    const std::string lower = lowercased(piece);
    return std::any_of(signInComplaints.begin(), signInComplaints.end(),
                       [&](auto complaint) { return lower.find(complaint) != std::string::npos; });
}

ProbeError unreadable(std::string_view text)
{
    return ProbeError::unreadableOutput(ProbeError::bounded(text, ProbeError::detailLimit));
}

/// The reason why standard output is not a JSON object.
ProbeError failureWithoutObject(std::string_view standardOutput, std::string_view standardError,
                                std::int32_t exitCode)
{
    if (exitCode != 0 && (indicatesAuthenticationFailure(standardError) ||
                          indicatesAuthenticationFailure(standardOutput)))
        return ProbeError::notAuthenticated();
    return unreadable(trimmed(standardOutput).empty() ? standardError : standardOutput);
}

ProbeError failureReportedAs(std::string result)
{
    if (indicatesAuthenticationFailure(result))
        return ProbeError::notAuthenticated();
    if (result.empty())
        return ProbeError::sessionFailed("The session reported is_error.");
    return ProbeError::sessionFailed(std::move(result));
}

/// Moves the text of a member out of `object`; empty when it is absent or not a string.
std::string takeText(JsonValue &object, std::string_view key)
{
    JsonValue *const value = member(object, key);
    auto *const text = value != nullptr ? value->as<std::string>() : nullptr;
    return text != nullptr ? std::move(*text) : std::string();
}

bool reportsError(const JsonValue &object)
{
    const JsonValue *const value = member(object, "is_error");
    const auto *const isError = value != nullptr ? value->as<bool>() : nullptr;
    return isError != nullptr && *isError;
}

} // namespace

ProbeOutput parse(std::string_view standardOutput, std::string_view standardError,
                  std::int32_t exitCode)
{
    auto object = recordIn(standardOutput);
    if (!object)
        throw failureWithoutObject(standardOutput, standardError, exitCode);
    std::string result = takeText(*object, "result");
    if (reportsError(*object))
        throw failureReportedAs(std::move(result));
    std::string sessionID = takeText(*object, "session_id");
    if (sessionID.empty())
        throw unreadable(standardOutput);
    const JsonValue *const usage = member(*object, "usage");
    return {.sessionID = std::move(sessionID),
            .result = std::move(result),
            .usage = usage != nullptr ? ProbeUsage::from(*usage) : std::nullopt};
}

bool indicatesAuthenticationFailure(std::string_view text)
{
    while (text.size() > pieceSize) {
        if (holdsComplaint(text.substr(0, pieceSize)))
            return true;
        text.remove_prefix(pieceSize - sharedSize);
    }
    return holdsComplaint(text);
}

} // namespace Loadwick::ProbeOutputParser
