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

/// What the pieces of `size` bytes give, the end included.
std::optional<ProbeUsage> usageInPieces(std::string_view transcript, std::size_t size)
{
    TranscriptPieces pieces;
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
    TranscriptPieces pieces;
    EXPECT_EQ(pieces.take(assistant), std::nullopt);
    EXPECT_EQ(pieces.take("\n"), found);
}

TEST(TranscriptPiecesTest, completesTheLastLineAtTheEnd)
{
    TranscriptPieces pieces;
    EXPECT_EQ(pieces.take(assistant), std::nullopt);
    EXPECT_EQ(pieces.finish(), found);
}

TEST(TranscriptPiecesTest, givesNothingAtTheEndOfNothing)
{
    EXPECT_EQ(TranscriptPieces().finish(), std::nullopt);
}

TEST(TranscriptPiecesTest, skipsALineThatIsTooLongAndReadsTheNext)
{
    TranscriptPieces pieces;
    const std::string half(TranscriptPieces::longestLine / 2 + 1, ' ');
    EXPECT_EQ(pieces.take(half), std::nullopt);
    EXPECT_EQ(pieces.take(half), std::nullopt);
    EXPECT_EQ(pieces.take(std::string(assistant) + "\n"), std::nullopt);
    EXPECT_EQ(pieces.take(std::string(assistant) + "\n"), found);
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
