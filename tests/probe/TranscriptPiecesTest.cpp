#include "probe/TranscriptPieces.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

namespace Loadwick {

namespace {

constexpr std::string_view user = R"({"type":"user","message":{"usage":{"input_tokens":1}}})";
constexpr std::string_view assistant =
    R"({"type":"assistant","message":{"usage":{"input_tokens":7,"output_tokens":2}}})";
constexpr ProbeUsage found{7, 0, 0, 2};

/// A transcript in memory, asked for its bytes once more.
TranscriptPieces::Again againIn(std::string_view transcript)
{
    return [transcript](std::int64_t begin, std::size_t size) {
        return std::string(transcript.substr(static_cast<std::size_t>(begin), size));
    };
}

/// For what needs no byte twice.
std::optional<std::string> never(std::int64_t, std::size_t)
{
    ADD_FAILURE() << "a line was asked for";
    return std::nullopt;
}

/// What the pieces of `size` bytes give, the end included.
std::optional<ProbeUsage> usageInPieces(std::string_view transcript, std::size_t size)
{
    TranscriptPieces pieces(againIn(transcript));
    for (; !transcript.empty(); transcript.remove_prefix(std::min(size, transcript.size())))
        if (const auto usage = pieces.take(transcript.substr(0, size)))
            return usage;
    return pieces.finish();
}

} // namespace

TEST(TranscriptPiecesTest, findsOneUsageWhereverThePiecesPartTheLines)
{
    const std::string transcript =
        std::string(user).append("\n\n").append(assistant).append("\n").append(user);
    for (std::size_t size = 1; size <= transcript.size(); ++size)
        EXPECT_EQ(usageInPieces(transcript, size), found) << size;
}

TEST(TranscriptPiecesTest, givesTheUsageWithTheLineFeedThatCompletesTheLine)
{
    TranscriptPieces pieces(againIn(assistant));
    EXPECT_EQ(pieces.take(assistant), std::nullopt);
    EXPECT_EQ(pieces.take("\n"), found);
}

TEST(TranscriptPiecesTest, completesTheLastLineAtTheEnd)
{
    TranscriptPieces pieces(againIn(assistant));
    EXPECT_EQ(pieces.take(assistant), std::nullopt);
    EXPECT_EQ(pieces.finish(), found);
}

TEST(TranscriptPiecesTest, givesNothingAtTheEndOfNothing)
{
    EXPECT_EQ(TranscriptPieces(never).finish(), std::nullopt);
}

TEST(TranscriptPiecesTest, skipsALineThatIsTooLongAndReadsTheNext)
{
    TranscriptPieces pieces(never);
    const std::string half(TranscriptPieces::longestLine / 2 + 1, ' ');
    EXPECT_EQ(pieces.take(half), std::nullopt);
    EXPECT_EQ(pieces.take(half), std::nullopt);
    EXPECT_EQ(pieces.take(std::string(assistant) + "\n"), std::nullopt);
    EXPECT_EQ(pieces.take(std::string(assistant) + "\n"), found);
}

TEST(TranscriptPiecesTest, asksForNoLineThatDoesNotHoldTheWord)
{
    TranscriptPieces pieces(never);
    for (int line = 0; line < 3; ++line) {
        EXPECT_EQ(pieces.take(user.substr(0, 20)), std::nullopt);
        EXPECT_EQ(pieces.take(user.substr(20)), std::nullopt);
        EXPECT_EQ(pieces.take("\n"), std::nullopt);
    }
    EXPECT_EQ(pieces.finish(), std::nullopt);
}

TEST(TranscriptPiecesTest, asksForALongLineAsAWhole)
{
    const std::string transcript = std::string(user) + "\n" + std::string(assistant);
    std::string asked;
    TranscriptPieces pieces([&](std::int64_t begin, std::size_t size) {
        return asked = transcript.substr(static_cast<std::size_t>(begin), size);
    });
    EXPECT_EQ(pieces.take(transcript.substr(0, 100)), std::nullopt);
    EXPECT_EQ(pieces.take(transcript.substr(100)), std::nullopt);
    EXPECT_EQ(pieces.finish(), found);
    EXPECT_EQ(asked, assistant);
}

TEST(TranscriptPiecesTest, goesOnWithoutALineThatCannotBeHadAgain)
{
    TranscriptPieces pieces([](std::int64_t, std::size_t) { return std::nullopt; });
    EXPECT_EQ(pieces.take(assistant), std::nullopt);
    EXPECT_EQ(pieces.take("\n" + std::string(assistant) + "\n"), found);
}

TEST(TranscriptPiecesTest, readsALineAsOneObject)
{
    EXPECT_EQ(TranscriptPieces::usageInLine(assistant), found);
    EXPECT_EQ(TranscriptPieces::usageInLine(user), std::nullopt);
    EXPECT_EQ(TranscriptPieces::usageInLine("[" + std::string(assistant) + "]"), std::nullopt);
    EXPECT_EQ(TranscriptPieces::usageInLine(R"({"type":"assistant","message":{"usage":[]}})"),
              std::nullopt);
}

} // namespace Loadwick
