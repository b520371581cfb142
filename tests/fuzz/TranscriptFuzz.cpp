#include <algorithm>
#include <cstdint>
#include <random>
#include <string>

#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/JsonOracle.h"
#include "fuzz/UsageOracle.h"
#include "probe/TranscriptReader.h"

namespace Loadwick {

namespace {

using Usage = std::optional<ProbeUsage>;

TranscriptPieces::Again againIn(std::string_view transcript)
{
    return [transcript](std::int64_t begin, std::size_t size) {
        return std::string(transcript.substr(static_cast<std::size_t>(begin), size));
    };
}

/// What the reader finds in pieces of random sizes, empty ones among them.
Usage usageInPieces(std::string_view transcript, std::minstd_rand random)
{
    TranscriptPieces pieces(againIn(transcript));
    while (!transcript.empty()) {
        const std::size_t size = std::min<std::size_t>(random() % 40, transcript.size());
        if (const Usage usage = pieces.take(transcript.substr(0, size)))
            return usage;
        transcript.remove_prefix(size);
    }
    return pieces.finish();
}

/// The first usage by the rule in words; not judged if the oracle abstains on an earlier line.
struct Expected
{
    bool isJudged;
    Usage usage;
};

Expected usageOfFullyParsedLines(std::string_view transcript)
{
    FuzzInput lines(transcript);
    while (!lines.isAtEnd()) {
        const JsonOracle line = JsonOracle::of(lines.takeLine());
        if (!line.isJudge)
            return {.isJudged = false, .usage = std::nullopt};
        const nlohmann::json *const record = line.object ? &*line.object : nullptr;
        if (JsonOracle::text(JsonOracle::find(record, "type")) != "assistant")
            continue;
        const nlohmann::json *const message = JsonOracle::find(record, "message");
        if (const Usage usage = expectedUsage(JsonOracle::find(message, "usage")))
            return {.isJudged = true, .usage = usage};
    }
    return {.isJudged = true, .usage = std::nullopt};
}

/// Whether line feeds are the only line breaks, as in a file that the command wrote.
bool hasPlainLines(std::string_view transcript)
{
    return transcript.find_first_of("\r\v\f\xC2\xE2") == std::string_view::npos;
}

void checkTranscript(std::string_view bytes)
{
    FuzzInput input(bytes);
    std::minstd_rand random(static_cast<std::uint32_t>(input.takeInteger(1'000'000)));
    const std::string_view transcript = input.rest();
    TranscriptPieces whole(againIn(transcript));
    Usage usage = whole.take(transcript);
    if (!usage)
        usage = whole.finish();
    require(usage == usageInPieces(transcript, random), "pieces change nothing");
    const Expected expected = usageOfFullyParsedLines(transcript);
    require(!expected.isJudged || usage == expected.usage, "the usage is the first one");
    require(!hasPlainLines(transcript) ||
                usage == TranscriptReader::firstAssistantUsageIn(transcript),
            "a text in memory reads like a file");
}

const FuzzTarget target("Transcript", checkTranscript);

} // namespace

} // namespace Loadwick
