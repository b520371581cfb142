#include "history/ScanHistoryFile.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/RecordedScanBuilder.h"

namespace Loadwick {

namespace {

constexpr std::string_view example = R"json({
  "scans" : [
    {
      "categories" : [
        {
          "name" : "System prompt",
          "tokens" : 14210
        },
        {
          "name" : "Other (name withheld)",
          "tokens" : 812
        }
      ],
      "date" : "2026-03-04T09:15:27Z",
      "id" : "6F1C2B0A-8E55-4C2D-9A61-3B7D1E0F4A92",
      "repositoryName" : "webshop",
      "repositoryPath" : "/Users/someone/src/webshop",
      "total" : 27654
    }
  ],
  "version" : 1
})json";

ScanHistoryFile exampleFile()
{
    RecordedScan scan = RecordedScanBuilder()
                            .named("webshop")
                            .in("/Users/someone/src/webshop")
                            .at(1'772'615'727)
                            .ofTotal(27'654)
                            .withCategory("System prompt", 14'210)
                            .withCategory("Other (name withheld)", 812)
                            .build();
    scan.id = Uuid::fromText("6F1C2B0A-8E55-4C2D-9A61-3B7D1E0F4A92").value();
    return {.version = 1, .scans = {scan}};
}

/// Five scans of different lengths, the oldest first.
ScanHistoryFile fiveScans()
{
    ScanHistoryFile file{.version = 1, .scans = {}};
    for (int second = 1; second <= 5; ++second) {
        RecordedScanBuilder builder;
        builder.at(second).named(std::string(static_cast<std::size_t>(7 * second % 5), '\n'));
        for (int category = second; category < 5; ++category)
            builder.withCategory("🗂️ \"Memory\"", 1'000);
        file.scans.push_back(builder.build());
    }
    return file;
}

/// The example after `change`, as JSON.
template<typename Change>
std::string changedExample(Change change)
{
    nlohmann::json document = nlohmann::json::parse(example);
    change(document, document["scans"][0]);
    return document.dump();
}

std::string withMember(const std::string &key, const nlohmann::json &value)
{
    return changedExample([&](nlohmann::json &, nlohmann::json &scan) { scan[key] = value; });
}

bool isReadable(std::string_view json)
{
    return ScanHistoryFile::decoded(json).has_value();
}

} // namespace

TEST(ScanHistoryFileTest, writesTheLayoutToTheByte)
{
    EXPECT_EQ(exampleFile().encoded(), example);
}

TEST(ScanHistoryFileTest, roundTrips)
{
    EXPECT_EQ(ScanHistoryFile::decoded(example), exampleFile());
}

TEST(ScanHistoryFileTest, writesAndReadsEmptyLists)
{
    const ScanHistoryFile none = {.version = 1, .scans = {}};
    EXPECT_EQ(none.encoded(), "{\n  \"scans\" : [],\n  \"version\" : 1\n}");
    EXPECT_EQ(ScanHistoryFile::decoded(none.encoded()), none);
    const ScanHistoryFile bare = {.version = 1, .scans = {RecordedScanBuilder().build()}};
    EXPECT_NE(bare.encoded().find("\"categories\" : [],"), std::string::npos);
    EXPECT_EQ(ScanHistoryFile::decoded(bare.encoded()), bare);
    EXPECT_TRUE(isReadable("{\"scans\":[\n\n  ],\"version\":1}"));
}

TEST(ScanHistoryFileTest, roundTripsEveryText)
{
    const ScanHistoryFile file = {.version = 1,
                                  .scans = {RecordedScanBuilder()
                                                .named("<img src=x>\n\"\\\t\x01 é 日 👩‍👧")
                                                .in(std::string("/a\0b/\xEF\xBF\xBD", 8))
                                                .withCategory("\xE2\x80\xA8", -1)
                                                .build()}};
    EXPECT_EQ(ScanHistoryFile::decoded(file.encoded()), file);
}

TEST(ScanHistoryFileTest, staysReadableWithAnIllFormedName)
{
    const ScanHistoryFile file = {.version = 1,
                                  .scans = {RecordedScanBuilder().named("a\xFFz").build()}};
    const auto read = ScanHistoryFile::decoded(file.encoded());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->scans[0].repositoryName, "a\xEF\xBF\xBDz");
}

TEST(ScanHistoryFileTest, readsIdentifiersInEitherCase)
{
    EXPECT_EQ(ScanHistoryFile::decoded(withMember("id", "6f1c2b0a-8e55-4c2d-9a61-3b7d1e0f4a92")),
              exampleFile());
}

TEST(ScanHistoryFileTest, ignoresUnknownKeys)
{
    const std::string json = changedExample([](nlohmann::json &document, nlohmann::json &scan) {
        document["note"] = {{"scans", 1}};
        scan["band"] = "lean";
        scan["categories"][0]["share"] = 0.5;
    });
    EXPECT_EQ(ScanHistoryFile::decoded(json), exampleFile());
}

TEST(ScanHistoryFileTest, takesTheLastOfDuplicateKeys)
{
    EXPECT_EQ(ScanHistoryFile::decoded(R"({"version":"x","scans":0,"scans":[],"version":1})"),
              (ScanHistoryFile{.version = 1, .scans = {}}));
    EXPECT_FALSE(isReadable(R"({"version":1,"scans":[],"scans":0})"));
}

TEST(ScanHistoryFileTest, ignoresOneByteOrderMark)
{
    EXPECT_EQ(ScanHistoryFile::decoded("\uFEFF" + std::string(example)), exampleFile());
    EXPECT_FALSE(isReadable("\uFEFF\uFEFF" + std::string(example)));
}

TEST(ScanHistoryFileTest, keepsAnyVersionUnchanged)
{
    EXPECT_EQ(ScanHistoryFile::decoded(R"({"scans":[],"version":2})")->version, 2);
    EXPECT_EQ(ScanHistoryFile::decoded(R"({"scans":[],"version":-9223372036854775808})")->version,
              std::numeric_limits<std::int64_t>::min());
}

TEST(ScanHistoryFileTest, requiresEveryKey)
{
    for (const std::string key :
         {"categories", "date", "id", "repositoryName", "repositoryPath", "total"})
        EXPECT_FALSE(isReadable(changedExample([&](nlohmann::json &, nlohmann::json &scan) {
            scan.erase(key);
        }))) << key;
    for (const std::string key : {"name", "tokens"})
        EXPECT_FALSE(isReadable(changedExample([&](nlohmann::json &, nlohmann::json &scan) {
            scan["categories"][1].erase(key);
        }))) << key;
    EXPECT_FALSE(isReadable(R"({"scans":[]})"));
    EXPECT_FALSE(isReadable(R"({"version":1})"));
}

TEST(ScanHistoryFileTest, checksTheTypeOfEveryKey)
{
    for (const std::string key : {"date", "id", "repositoryName", "repositoryPath"})
        for (const nlohmann::json &value :
             {nlohmann::json(1), nlohmann::json(), nlohmann::json::array(), nlohmann::json(true)})
            EXPECT_FALSE(isReadable(withMember(key, value))) << key << " " << value;
    for (const nlohmann::json &value :
         {nlohmann::json("27654"), nlohmann::json(1.0), nlohmann::json(true), nlohmann::json(),
          nlohmann::json(9'223'372'036'854'775'808U)})
        EXPECT_FALSE(isReadable(withMember("total", value))) << value;
    for (const nlohmann::json &value :
         {nlohmann::json::object(), nlohmann::json(), nlohmann::json::array({1}),
          nlohmann::json::array({nlohmann::json::array()})})
        EXPECT_FALSE(isReadable(withMember("categories", value))) << value;
    EXPECT_FALSE(isReadable(R"({"scans":{},"version":1})"));
    EXPECT_FALSE(isReadable(R"({"scans":[null],"version":1})"));
    EXPECT_FALSE(isReadable(R"({"scans":[],"version":1.0})"));
    EXPECT_FALSE(isReadable(R"({"scans":[],"version":"1"})"));
    EXPECT_FALSE(isReadable(R"({"scans":[],"version":true})"));
}

TEST(ScanHistoryFileTest, readsDatesAndIdentifiersStrictly)
{
    for (const std::string date : {"", "2026-03-04", "2026-03-04T09:15:27", "2026-02-30T09:15:27Z",
                                   "2026-03-04T09:15:27.5Z", "2026-03-04T09:15:27+01:00"})
        EXPECT_FALSE(isReadable(withMember("date", date))) << date;
    for (const std::string id : {"", "1", "{6F1C2B0A-8E55-4C2D-9A61-3B7D1E0F4A92}"})
        EXPECT_FALSE(isReadable(withMember("id", id))) << id;
}

TEST(ScanHistoryFileTest, rejectsWhatIsNotJson)
{
    for (const std::string_view json :
         {std::string_view(""), std::string_view("[]"), std::string_view("null"),
          std::string_view("{"), example.substr(0, example.size() - 1),
          std::string_view("{\"scans\":[],\"version\":1}x"),
          std::string_view("{\"scans\":[],\"version\":1,}")})
        EXPECT_FALSE(isReadable(json)) << json;
    EXPECT_FALSE(isReadable("{\"scans\":[],\"version\":1,\"x\":\"\xFF\"}"));
}

TEST(ScanHistoryFileTest, survivesDeepNesting)
{
    const std::string deep = "{\"version\":1,\"scans\":" + std::string(100'000, '[');
    EXPECT_FALSE(isReadable(deep));
    EXPECT_FALSE(isReadable(deep + std::string(100'000, ']') + "}"));
}

TEST(ScanHistoryFileTest, leavesOutTheOldestScansOnlyWhileItIsTooLong)
{
    const ScanHistoryFile file = fiveScans();
    std::size_t leftOut = 0;
    for (std::size_t limit = file.encoded().size() + 1; limit-- > 0;) {
        ScanHistoryFile expected = file;
        expected.scans.erase(expected.scans.begin(),
                             expected.scans.begin() + static_cast<std::ptrdiff_t>(leftOut));
        for (; expected.encoded().size() > limit && leftOut < 4; ++leftOut)
            expected.scans.erase(expected.scans.begin());
        if (expected.encoded().size() > limit)
            break;
        ScanHistoryFile shortened = file;
        ASSERT_EQ(shortened.encodedWithin(limit), expected.encoded()) << limit;
        ASSERT_EQ(shortened, expected) << limit;
    }
    EXPECT_EQ(leftOut, 4U);
}

TEST(ScanHistoryFileTest, leavesOutTheCategoriesOfAScanThatIsTooLongByItself)
{
    ScanHistoryFile file = fiveScans();
    const std::size_t limit = file.encoded().size() + 100;
    file.scans[3].categories = RecordedCategories::List(1'000, {.name = "Category", .tokens = 1});
    ScanHistoryFile expected = file;
    expected.scans[3].categories = {};
    EXPECT_EQ(file.encodedWithin(limit), expected.encoded());
    EXPECT_EQ(file, expected);
}

TEST(ScanHistoryFileTest, leavesOutEveryScanWhereNoneFits)
{
    ScanHistoryFile file = fiveScans();
    EXPECT_EQ(file.encodedWithin(1), (ScanHistoryFile{.version = 1, .scans = {}}).encoded());
}

} // namespace Loadwick
