#include "probe/ProbeOutputParser.h"

#include <string>

#include <gtest/gtest.h>

#include "probe/ProbeError.h"
#include "probe/SlabParser.h"
#include "support/ProcessMemory.h"

namespace Loadwick {

namespace {

constexpr std::size_t size = 48U << 20;

} // namespace

TEST(ProbeOutputParserSlowTest, copiesAHugeAnswerOnce)
{
    const std::string text = R"({"session_id":"s","result":")" + std::string(size, 'x') + "\"}";
    const PeakMemory memory;
    const auto read = ProbeOutputParser::parse(text, "", 0);
    EXPECT_EQ(read.result.size(), size);
    EXPECT_TRUE(SlabParser::parse(read.result).empty());
    EXPECT_LT(memory.growthInBytes(), size + size / 20);
}

TEST(ProbeOutputParserSlowTest, copiesAHugeComplaintOnce)
{
    const std::string text = R"({"is_error":true,"result":")" + std::string(size, 'x') + "\"}";
    const PeakMemory memory;
    EXPECT_THROW((void)ProbeOutputParser::parse(text, "", 1), ProbeError);
    EXPECT_LT(memory.growthInBytes(), size + size / 20);
}

TEST(ProbeOutputParserSlowTest, copiesNoHugeArrayWhereAScalarBelongs)
{
    std::string zeros = "0";
    for (zeros.reserve(size); zeros.size() < size;)
        zeros += ",0";
    const std::string text = R"({"session_id":"s","result":[)" + zeros +
                             R"(],"usage":{"input_tokens":[)" + zeros + "]}}";
    const PeakMemory memory;
    const auto read = ProbeOutputParser::parse(text, "", 0);
    EXPECT_EQ(read.result, "");
    EXPECT_FALSE(read.usage);
    EXPECT_LT(memory.growthInBytes(), size / 20);
}

TEST(ProbeOutputParserSlowTest, copiesNoHugeOutputThatIsNotARecord)
{
    const std::string text(size, 'x');
    const PeakMemory memory;
    EXPECT_THROW((void)ProbeOutputParser::parse(text, text, 1), ProbeError);
    EXPECT_LT(memory.growthInBytes(), size / 20);
}

} // namespace Loadwick
