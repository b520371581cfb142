#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "fuzz/FuzzTarget.h"

namespace Loadwick {

namespace {

namespace fs = std::filesystem;

std::string bytesOf(const fs::path &file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<fs::path> seedsOf(const FuzzTarget &target)
{
    std::vector<fs::path> seeds;
    for (const auto &entry : fs::directory_iterator(fs::path(LOADWICK_FUZZ_SEEDS) / target.name()))
        seeds.push_back(entry.path());
    std::sort(seeds.begin(), seeds.end());
    return seeds;
}

/// Runs one seed through its target, which ends the program on a failure.
class Seed : public testing::Test
{
public:
    Seed(const FuzzTarget &target, fs::path file) : m_target(target), m_file(std::move(file)) {}

    void TestBody() override
    {
        const std::string bytes = bytesOf(m_file);
        ASSERT_FALSE(bytes.empty()) << m_file;
        m_target.check(bytes);
    }

private:
    const FuzzTarget &m_target;
    fs::path m_file;
};

void registerSeedsOf(const FuzzTarget &target)
{
    for (const fs::path &file : seedsOf(target))
        testing::RegisterTest(
            target.name().c_str(), file.filename().c_str(), nullptr, nullptr, __FILE__, __LINE__,
            [&target, file]() -> testing::Test * { return new Seed(target, file); });
}

TEST(SeedsTest, targetsAndSeedFoldersMatch)
{
    std::vector<std::string> names;
    for (const FuzzTarget *target : FuzzTarget::all()) {
        names.push_back(target->name());
        EXPECT_GE(seedsOf(*target).size(), 3U) << target->name();
    }
    for (const auto &folder : fs::directory_iterator(LOADWICK_FUZZ_SEEDS))
        EXPECT_EQ(std::count(names.begin(), names.end(), folder.path().filename()), 1) << folder;
}

TEST(SeedsTest, aViolatedPropertyEndsTheProgram)
{
    EXPECT_DEATH(require(false, "all is well"), "does not hold: all is well");
    require(true, "all is well");
}

} // namespace

} // namespace Loadwick

int main(int argumentCount, char **arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    for (const Loadwick::FuzzTarget *target : Loadwick::FuzzTarget::all())
        Loadwick::registerSeedsOf(*target);
    return RUN_ALL_TESTS();
}
