#include "probe/ProbeUsage.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "json/JsonReader.h"

namespace Loadwick {

namespace {

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();

std::optional<ProbeUsage> usageOf(const std::string &json)
{
    const auto document = jsonObject("{\"usage\":" + json + "}", {"usage"});
    return ProbeUsage::from(*member(*document, "usage"));
}

ProbeUsage counts(std::int64_t input, std::int64_t creation, std::int64_t read, std::int64_t output)
{
    return {.inputTokens = input,
            .cacheCreationInputTokens = creation,
            .cacheReadInputTokens = read,
            .outputTokens = output};
}

} // namespace

TEST(ProbeUsageTest, readsTheFourCounts)
{
    EXPECT_EQ(usageOf(R"({"input_tokens":3,"cache_creation_input_tokens":40,
                          "cache_read_input_tokens":500,"output_tokens":6000})"),
              counts(3, 40, 500, 6000));
}

TEST(ProbeUsageTest, acceptsInputTokensAlone)
{
    const auto usage = usageOf(R"({"input_tokens":3})");
    EXPECT_EQ(usage, counts(3, 0, 0, 0));
    EXPECT_EQ(usage->startupTotal(), 3);
}

TEST(ProbeUsageTest, acceptsEitherCacheCountAlone)
{
    EXPECT_EQ(usageOf(R"({"cache_creation_input_tokens":7})"), counts(0, 7, 0, 0));
    EXPECT_EQ(usageOf(R"({"cache_read_input_tokens":8})"), counts(0, 0, 8, 0));
}

TEST(ProbeUsageTest, returnsNothingForOutputTokensAlone)
{
    EXPECT_FALSE(usageOf(R"({"output_tokens":9})"));
    EXPECT_FALSE(usageOf("{}"));
}

TEST(ProbeUsageTest, treatsInexactIntegersAsAbsent)
{
    for (const char *value : {"\"3\"", "3.0", "3.5", "3e0", "null", "true", "[3]", "{}",
                              "9223372036854775808", "99999999999999999999"}) {
        const std::string json = std::string(R"({"input_tokens":)") + value + "}";
        EXPECT_FALSE(usageOf(json)) << value;
        const std::string beside =
            std::string(R"({"cache_read_input_tokens":1,"input_tokens":)") + value + "}";
        EXPECT_EQ(usageOf(beside), counts(0, 0, 1, 0)) << value;
    }
}

TEST(ProbeUsageTest, returnsNothingForANonObject)
{
    EXPECT_FALSE(usageOf("[]"));
    EXPECT_FALSE(usageOf("null"));
    EXPECT_FALSE(usageOf("3"));
}

TEST(ProbeUsageTest, leavesOutputTokensOutOfTheStartupTotal)
{
    EXPECT_EQ(counts(1, 20, 300, 4000).startupTotal(), 321);
    EXPECT_EQ(counts(largest - 2, 1, 1, largest).startupTotal(), largest);
}

TEST(ProbeUsageTest, endsTheProgramWhenTheTotalOverflows)
{
    EXPECT_DEATH((void)counts(largest, 1, 0, 0).startupTotal(), "does not fit 64 bits");
    EXPECT_DEATH((void)counts(largest - 1, 1, 1, 0).startupTotal(), "does not fit 64 bits");
}

} // namespace Loadwick
