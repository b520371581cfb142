#include "probe/TranscriptReader.h"

#include <algorithm>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "samples/TemporaryFolder.h"
#include "support/TranscriptLines.h"

namespace Loadwick {

namespace {

namespace fs = std::filesystem;

const std::string userLine = R"({"type":"user","message":{"role":"user","content":"hi"}})";

/// An ignored line of `size` bytes, line feed included.
std::string fillerOf(std::size_t size)
{
    const std::string head = R"({"type":"attachment","x":")";
    return head + std::string(size - head.size() - 3, 'x') + "\"}\n";
}

std::optional<ProbeUsage> usageOfFile(std::string_view content)
{
    const TemporaryFolder folder;
    return TranscriptReader::firstAssistantUsageAtPath(folder.write("t.jsonl", content));
}

/// What both functions find in `text`.
std::optional<ProbeUsage> usageOf(std::string_view text)
{
    const auto usage = TranscriptReader::firstAssistantUsageIn(text);
    EXPECT_EQ(usageOfFile(text), usage) << text;
    return usage;
}

ProbeUsage inputOf(std::int64_t tokens)
{
    return {.inputTokens = tokens,
            .cacheCreationInputTokens = 0,
            .cacheReadInputTokens = 0,
            .outputTokens = 1};
}

constexpr std::string_view userRecord = R"({"type":"user","message":{"usage":{"input_tokens":1}}})";
constexpr std::string_view assistantRecord =
    R"({"type":"assistant","message":{"usage":{"input_tokens":7,"output_tokens":2}}})";
constexpr ProbeUsage found{7, 0, 0, 2};

/// Rereads a transcript in memory.
TranscriptPieces::Again againIn(std::string_view transcript)
{
    return [transcript](std::int64_t begin, std::size_t size) {
        return std::string(transcript.substr(static_cast<std::size_t>(begin), size));
    };
}

/// Fails when a line is reread.
std::optional<std::string> never(std::int64_t, std::size_t)
{
    ADD_FAILURE() << "a line was reread";
    return std::nullopt;
}

/// The usage in a transcript that arrives in pieces of `size` bytes.
std::optional<ProbeUsage> usageInPieces(std::string_view transcript, std::size_t size)
{
    TranscriptPieces pieces(againIn(transcript));
    for (; !transcript.empty(); transcript.remove_prefix(std::min(size, transcript.size())))
        if (const auto usage = pieces.take(transcript.substr(0, size)))
            return usage;
    return pieces.finish();
}

} // namespace

TEST(TranscriptReaderTest, takesTheUsageOfTheFirstAssistantMessage)
{
    EXPECT_EQ(usageOf(userLine + "\n" + assistantLine(7) + "\n" + assistantLine(8) + "\n"),
              inputOf(7));
}

TEST(TranscriptReaderTest, readsAllFourCounts)
{
    EXPECT_EQ(usageOf(R"({"type":"assistant","message":{"usage":{"input_tokens":1,
"cache_read_input_tokens":2}}})"),
              std::nullopt);
    EXPECT_EQ(usageOf(R"({"type":"assistant","message":{"usage":{"input_tokens":1,)"
                      R"("cache_creation_input_tokens":2,"cache_read_input_tokens":3,)"
                      R"("output_tokens":4}}})"),
              (ProbeUsage{1, 2, 3, 4}));
}

TEST(TranscriptReaderTest, skipsAUsageOfOnlyOutputTokens)
{
    EXPECT_EQ(usageOf(R"({"type":"assistant","message":{"usage":{"output_tokens":5}}})"
                      "\n" +
                      assistantLine(9)),
              inputOf(9));
}

TEST(TranscriptReaderTest, readsALastLineWithoutLineFeed)
{
    EXPECT_EQ(usageOf(userLine + "\n" + assistantLine(4)), inputOf(4));
}

TEST(TranscriptReaderTest, skipsMalformedLines)
{
    EXPECT_EQ(usageOf("\n   \n{\n[]\nnull\n{\"type\":\"assistant\"\n\xFF\n" + assistantLine(3) +
                      "}\n\xEF\xBB\xBF" + assistantLine(4) + "\n" + assistantLine(5) + "\n"),
              inputOf(5));
}

TEST(TranscriptReaderTest, skipsOtherKindsOfLine)
{
    for (const char *line : {R"({"type":"assistant"})", R"({"type":"assistant","message":[]})",
                             R"({"type":"assistant","message":{"usage":[1]}})",
                             R"({"type":"Assistant","message":{"usage":{"input_tokens":1}}})",
                             R"({"type":1,"message":{"usage":{"input_tokens":1}}})",
                             R"({"message":{"usage":{"input_tokens":1}}})",
                             R"({"type":"assistant","usage":{"input_tokens":1}})",
                             R"({"type":"assistant","message.usage":{"input_tokens":1}})"})
        EXPECT_EQ(usageOf(std::string(line) + "\n" + assistantLine(2)), inputOf(2)) << line;
}

TEST(TranscriptReaderTest, returnsNothingWithoutAnAssistantMessage)
{
    EXPECT_FALSE(usageOf(""));
    EXPECT_FALSE(usageOf("\n\n"));
    EXPECT_FALSE(usageOf(userLine + "\n" + userLine));
}

TEST(TranscriptReaderTest, trimsALine)
{
    EXPECT_EQ(usageOf("  \t" + assistantLine(6) + "  \r\n"), inputOf(6));
}

TEST(TranscriptReaderTest, returnsNothingForAnUnreadableFile)
{
    const TemporaryFolder folder;
    EXPECT_FALSE(TranscriptReader::firstAssistantUsageAtPath(folder.path() / "missing"));
    EXPECT_FALSE(TranscriptReader::firstAssistantUsageAtPath(folder.path()));
    ASSERT_EQ(mkfifo((folder.path() / "fifo").c_str(), 0600), 0);
    EXPECT_FALSE(TranscriptReader::firstAssistantUsageAtPath(folder.path() / "fifo"));
}

TEST(TranscriptReaderTest, reassemblesALineSplitAcrossTwoReads)
{
    const std::string line = assistantLine(11);
    for (std::size_t cut = 0; cut <= line.size() + 1; ++cut)
        ASSERT_EQ(usageOfFile(fillerOf(65536 - cut) + line + "\n" + userLine + "\n"), inputOf(11))
            << cut;
}

TEST(TranscriptReaderTest, reassemblesALineOfManyReads)
{
    std::string line = assistantLine(12);
    line.insert(1, "\"x\":\"" + std::string(1'000'000, 'y') + "\",");
    EXPECT_EQ(usageOfFile(userLine + "\n" + line + "\n"), inputOf(12));
    EXPECT_EQ(usageOfFile(userLine + "\n" + line), inputOf(12));
}

TEST(TranscriptReaderTest, readsAWordThatIsSpelledWithEscapes)
{
    EXPECT_EQ(usageOf(R"({"type":"\u0061ssistant","message":{"usage":{"input_tokens":4,)"
                      R"("output_tokens":1}}})"),
              inputOf(4));
    EXPECT_EQ(usageOf(R"({"type":"a\u0073\u0073istan\u0074","message":{"usage":)"
                      R"({"input_tokens":5,"output_tokens":1}}})"),
              inputOf(5));
}

TEST(TranscriptReaderTest, findsTheWordAcrossReads)
{
    const std::string line = assistantLine(9);
    const std::size_t word = line.find("assistant");
    for (std::size_t part = 0; part <= std::string_view("assistant").size(); ++part) {
        // The line begins in the first read, and the second begins within the word.
        const std::string filler = fillerOf(65'536 - word - part);
        EXPECT_EQ(usageOfFile(filler + line + "\n"), inputOf(9)) << part;
        EXPECT_EQ(usageOfFile(filler + line), inputOf(9)) << part;
    }
}

TEST(TranscriptReaderTest, continuesAfterALongLineThatMerelyHoldsTheWord)
{
    const std::string talk =
        R"({"type":"user","x":"assistant)" + std::string(200'000, 'x') + "\"}\n";
    EXPECT_EQ(usageOfFile(talk + userLine + "\n" + talk + assistantLine(3) + "\n" + talk),
              inputOf(3));
    EXPECT_EQ(usageOfFile(talk + talk), std::nullopt);
}

TEST(TranscriptReaderTest, forgetsTheWordAtTheEndOfItsLine)
{
    const std::string talk =
        R"({"type":"user","x":"assistant)" + std::string(100'000, 'x') + "\"}\n";
    EXPECT_EQ(usageOfFile(talk + fillerOf(150'000) + assistantLine(6)), inputOf(6));
}

TEST(TranscriptReaderTest, endsALineOfAFileOnlyAtALineFeed)
{
    std::string line = assistantLine(13);
    line.insert(1, "\"x\":\"a\u2028b\u2029c\u0085d\",");
    EXPECT_EQ(usageOfFile(line + "\n"), inputOf(13));
    EXPECT_FALSE(usageOfFile(userLine + "\r" + assistantLine(13)));
}

TEST(TranscriptReaderTest, endsALineOfATextAtEveryLineBreak)
{
    for (const char *lineBreak : {"\n", "\r\n", "\r", "\u0085", "\u2028", "\u2029"})
        EXPECT_EQ(TranscriptReader::firstAssistantUsageIn(userLine + lineBreak + assistantLine(14)),
                  inputOf(14));
}

TEST(TranscriptReaderTest, readsNoFurtherThanTheFirstUsage)
{
    const TemporaryFolder folder;
    const fs::path path = folder.write("t.jsonl", assistantLine(15) + "\n");
    // A hole of a terabyte costs nothing to make and hours to read.
    fs::resize_file(path, 1ULL << 40);
    EXPECT_EQ(TranscriptReader::firstAssistantUsageAtPath(path), inputOf(15));
}

TEST(TranscriptReaderTest, skipsALineThatIsTooLong)
{
    const TemporaryFolder folder;
    const fs::path path = folder.write("t.jsonl", userLine + "\n");
    fs::resize_file(path, 70U << 20);
    std::ofstream(path, std::ios::binary | std::ios::app) << "\n" << assistantLine(16);
    EXPECT_EQ(TranscriptReader::firstAssistantUsageAtPath(path), inputOf(16));
}

TEST(TranscriptReaderTest, readsManyShortLines)
{
    std::string text;
    while (text.size() < (256U << 10))
        text += "{}\n";
    EXPECT_EQ(usageOfFile(text + assistantLine(18)), inputOf(18));
}

TEST(TranscriptReaderTest, findsAUsageWhereverThePiecesCutTheLines)
{
    const std::string transcript = std::string(userRecord)
                                       .append("\n\n")
                                       .append(assistantRecord)
                                       .append("\n")
                                       .append(userRecord);
    for (std::size_t size = 1; size <= transcript.size(); ++size)
        EXPECT_EQ(usageInPieces(transcript, size), found) << size;
}

TEST(TranscriptReaderTest, returnsTheUsageWithTheLineFeedThatCompletesTheLine)
{
    TranscriptPieces pieces(againIn(assistantRecord));
    EXPECT_EQ(pieces.take(assistantRecord), std::nullopt);
    EXPECT_EQ(pieces.take("\n"), found);
}

TEST(TranscriptReaderTest, completesTheLastLineAtTheEnd)
{
    TranscriptPieces pieces(againIn(assistantRecord));
    EXPECT_EQ(pieces.take(assistantRecord), std::nullopt);
    EXPECT_EQ(pieces.finish(), found);
}

TEST(TranscriptReaderTest, returnsNothingForAnEmptyTranscript)
{
    EXPECT_EQ(TranscriptPieces(never).finish(), std::nullopt);
}

TEST(TranscriptReaderTest, skipsATooLongLineInPiecesAndReadsTheNext)
{
    TranscriptPieces pieces(never);
    const std::string half(TranscriptPieces::longestLine / 2 + 1, ' ');
    EXPECT_EQ(pieces.take(half), std::nullopt);
    EXPECT_EQ(pieces.take(half), std::nullopt);
    EXPECT_EQ(pieces.take(std::string(assistantRecord) + "\n"), std::nullopt);
    EXPECT_EQ(pieces.take(std::string(assistantRecord) + "\n"), found);
}

TEST(TranscriptReaderTest, rereadsNoLineWithoutTheWord)
{
    TranscriptPieces pieces(never);
    for (int line = 0; line < 3; ++line) {
        EXPECT_EQ(pieces.take(userRecord.substr(0, 20)), std::nullopt);
        EXPECT_EQ(pieces.take(userRecord.substr(20)), std::nullopt);
        EXPECT_EQ(pieces.take("\n"), std::nullopt);
    }
    EXPECT_EQ(pieces.finish(), std::nullopt);
}

TEST(TranscriptReaderTest, rereadsAWholeLongLine)
{
    const std::string transcript = std::string(userRecord) + "\n" + std::string(assistantRecord);
    std::string asked;
    TranscriptPieces pieces([&](std::int64_t begin, std::size_t size) {
        return asked = transcript.substr(static_cast<std::size_t>(begin), size);
    });
    EXPECT_EQ(pieces.take(transcript.substr(0, 100)), std::nullopt);
    EXPECT_EQ(pieces.take(transcript.substr(100)), std::nullopt);
    EXPECT_EQ(pieces.finish(), found);
    EXPECT_EQ(asked, assistantRecord);
}

TEST(TranscriptReaderTest, skipsALineThatCannotBeReread)
{
    TranscriptPieces pieces([](std::int64_t, std::size_t) { return std::nullopt; });
    EXPECT_EQ(pieces.take(assistantRecord), std::nullopt);
    EXPECT_EQ(pieces.take("\n" + std::string(assistantRecord) + "\n"), found);
}

TEST(TranscriptReaderTest, readsALineAsOneObject)
{
    EXPECT_EQ(TranscriptPieces::usageInLine(assistantRecord), found);
    EXPECT_EQ(TranscriptPieces::usageInLine(userRecord), std::nullopt);
    EXPECT_EQ(TranscriptPieces::usageInLine("[" + std::string(assistantRecord) + "]"),
              std::nullopt);
    EXPECT_EQ(TranscriptPieces::usageInLine(R"({"type":"assistant","message":{"usage":[]}})"),
              std::nullopt);
}

} // namespace Loadwick
