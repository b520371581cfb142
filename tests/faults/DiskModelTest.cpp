#include "faults/crashes/DiskModel.h"

#include <gtest/gtest.h>

#include "samples/TemporaryFolder.h"

namespace Faults {

namespace {

using Image = DiskModel::Image;
using Images = std::set<Image>;
namespace fs = std::filesystem;

} // namespace

TEST(DiskModelTest, keepsWhatWasThereBefore)
{
    const Loadwick::TemporaryFolder root;
    root.write("folder/file", "old");
    const DiskModel model(root.path());
    EXPECT_EQ(model.images(), Images({{{"folder", std::nullopt}, {"folder/file", "old"}}}));
}

TEST(DiskModelTest, losesWhatWasNotSynced)
{
    const Loadwick::TemporaryFolder root;
    DiskModel model(root.path());
    const fs::path file = root.write("file", "ab");
    model.observe();
    const std::string zeros(2, '\0');
    EXPECT_EQ(model.images(), Images({{}, {{"file", ""}}, {{"file", zeros}}, {{"file", "ab"}}}));
    model.sync(file);
    EXPECT_EQ(model.images(), Images({{}, {{"file", "ab"}}}));
    model.sync(root.path());
    EXPECT_EQ(model.images(), Images({{{"file", "ab"}}}));
}

TEST(DiskModelTest, writesBlocksInAnyOrder)
{
    const Loadwick::TemporaryFolder root;
    const std::string first(DiskModel::blockSize, 'a');
    const fs::path file = root.write("file", first + "b");
    DiskModel model(root.path());
    root.write("file", std::string(DiskModel::blockSize + 1, 'd'));
    model.observe();
    EXPECT_EQ(model.images().size(), 4U);
    EXPECT_TRUE(model.images().contains({{"file", first + "d"}}));
}

TEST(DiskModelTest, mayRenameBeforeTheContentIsThere)
{
    const Loadwick::TemporaryFolder root;
    root.write("file", "old");
    DiskModel model(root.path());
    root.write("new", "newer");
    model.observe();
    fs::rename(root.path() / "new", root.path() / "file");
    model.observe();
    EXPECT_TRUE(model.images().contains({{"file", ""}}));
    EXPECT_TRUE(model.images().contains({{"file", "old"}}));
}

TEST(DiskModelTest, changesFoldersInOrder)
{
    const Loadwick::TemporaryFolder root;
    DiskModel model(root.path());
    fs::create_directory(root.path() / "one");
    model.observe();
    fs::create_directory(root.path() / "one/two");
    model.observe();
    fs::create_directory(root.path() / "three");
    model.observe();
    EXPECT_EQ(model.images().size(), 4U);
    model.sync(root.path() / "one");
    const Image first{{"one", std::nullopt}, {"one/two", std::nullopt}};
    Image second = first;
    second.emplace("three", std::nullopt);
    EXPECT_EQ(model.images(), Images({first, second}));
}

TEST(DiskModelTest, restoresAnImage)
{
    const Loadwick::TemporaryFolder root;
    root.write("other/file", "x");
    const Image image{{"folder", std::nullopt}, {"folder/file", "old"}};
    DiskModel::restore(image, root.path());
    EXPECT_EQ(DiskModel(root.path()).images(), Images({image}));
}

} // namespace Faults
