// What a unit of work costs in instructions: the difference between two sizes, divided by their
// difference in units. The figures are those of an everyday build (-O1) with GCC 12. A change that
// raises one by over 15 % explains that here. Lower them when the code gets better.
#include <cstdint>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "measure/Measurement.h"
#include "samples/GeneratedFiles.h"
#include "samples/TemporaryFolder.h"

namespace Loadwick {

namespace {

namespace fs = std::filesystem;

constexpr double slack = 1.15;

double difference(const std::vector<std::string> &large, const std::vector<std::string> &small)
{
    return static_cast<double>(instructionsOf(large) - instructionsOf(small));
}

double byteCountOf(const fs::path &folder)
{
    return static_cast<double>(fs::file_size(folder / "scan-history.json"));
}

/// Generated projects that each hold a folder, so that no search can skip them.
fs::path nestedProjects(const fs::path &root, std::int64_t entryCount)
{
    GeneratedFiles::projects(root, entryCount);
    for (const fs::directory_entry &project : fs::directory_iterator(root))
        fs::create_directory(project.path() / "inner");
    return root;
}

/// The cost of laying out an item, without generating the weights.
double perItem(const std::string &count)
{
    return difference({"treemap", count}, {"weights", count}) / std::stod(count);
}

/// The cost of an operation on a history per scan, without the start of the program.
double perScan(const std::string &verb, const fs::path &folder, double scanCount)
{
    return difference({verb, folder}, {"weights", "0"}) / scanCount;
}

/// The cost of an operation on two scans per category that each of them has.
double perCategory(const std::string &verb, std::int64_t count)
{
    return difference({verb, std::to_string(count)}, {verb, "0"}) / static_cast<double>(count);
}

} // namespace

TEST(InstructionCountSlowTest, anEntryOfATranscriptsFolder)
{
    const TemporaryFolder folder;
    const fs::path small = nestedProjects(folder.path() / "small", 1'000);
    const fs::path large = nestedProjects(folder.path() / "large", 4'000);
    const double cost = difference({"search", large, "nothing"}, {"search", small, "nothing"});
    EXPECT_LT(cost / 3'000, 275 * slack);
}

TEST(InstructionCountSlowTest, aKilobyteOfATranscript)
{
    const TemporaryFolder folder;
    GeneratedFiles::transcript(folder.path() / "small", 1'000'000);
    GeneratedFiles::transcript(folder.path() / "large", 5'000'000);
    const double cost = difference({"first-usage", folder.path() / "large"},
                                   {"first-usage", folder.path() / "small"});
    EXPECT_LT(cost / 4'000, 1'610 * slack);
}

TEST(InstructionCountSlowTest, aLineOfAnAnswer)
{
    const TemporaryFolder folder;
    GeneratedFiles::answer(folder.path() / "small", 2'000);
    GeneratedFiles::answer(folder.path() / "large", 12'000);
    const double cost = difference({"attribution", folder.path() / "large"},
                                   {"attribution", folder.path() / "small"});
    EXPECT_LT(cost / 10'000, 2'000 * slack);
}

TEST(InstructionCountSlowTest, anItemOfATreemap)
{
    const double few = perItem("1000");
    EXPECT_LT(few, 295 * slack);
    EXPECT_LT(perItem("100000"), few * 1.7);
}

TEST(InstructionCountSlowTest, aByteOfAHistory)
{
    const TemporaryFolder folder;
    GeneratedFiles::history(folder.path() / "small", 200);
    GeneratedFiles::history(folder.path() / "large", 1'000);
    const double cost = difference({"history-load", folder.path() / "large"},
                                   {"history-load", folder.path() / "small"});
    EXPECT_LT(cost / (byteCountOf(folder.path() / "large") - byteCountOf(folder.path() / "small")),
              85 * slack);
}

TEST(InstructionCountSlowTest, aScanCostsLittleMoreInALongHistory)
{
    const TemporaryFolder folder;
    GeneratedFiles::history(folder.path() / "small", 200);
    GeneratedFiles::history(folder.path() / "large", 10'000);
    const double few = perScan("leaderboard", folder.path() / "small", 200);
    EXPECT_LT(perScan("leaderboard", folder.path() / "large", 10'000), few * 1.5);
}

TEST(InstructionCountSlowTest, aCategoryOfAComparison)
{
    const double few = perCategory("comparison", 1'000);
    EXPECT_LT(few, 2'750 * slack);
    EXPECT_LT(perCategory("comparison", 10'000), few * 1.5);
}

TEST(InstructionCountSlowTest, aCategoryOfATable)
{
    const double few = perCategory("category-table", 1'000);
    EXPECT_LT(few, 6'600 * slack);
    EXPECT_LT(perCategory("category-table", 10'000), few * 1.5);
}

} // namespace Loadwick
