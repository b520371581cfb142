#include "faults/crashes/TracedWork.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "samples/TemporaryFolder.h"

namespace Faults {

TEST(TracedWorkTest, killsBeforeAndAfterEachCall)
{
    const Loadwick::TemporaryFolder folder;
    const std::filesystem::path path = folder.path() / "made";
    const auto work = [&path] { close(open(path.c_str(), O_CREAT | O_WRONLY, 0600)); };
    long kills = 0;
    long killsWithoutFile = 0;
    while (isKilledAt(kills + 1, work)) {
        ++kills;
        killsWithoutFile += std::filesystem::exists(path) ? 0 : 1;
        std::filesystem::remove(path);
    }
    // Missing before the call that creates it; present after it and at the next call.
    EXPECT_GE(killsWithoutFile, 1);
    EXPECT_GE(kills - killsWithoutFile, 3);
    EXPECT_TRUE(std::filesystem::exists(path));
}

TEST(TracedWorkTest, doesNotKillFinishedWork)
{
    EXPECT_FALSE(isKilledAt(1'000, [] {}));
}

TEST(TracedWorkTest, reportsWhatWasSynced)
{
    const Loadwick::TemporaryFolder folder;
    const int descriptor = open(folder.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    long calls = 0;
    std::vector<int> synced;
    const auto work = [descriptor] {
        static_cast<void>(fsync(descriptor));
        static_cast<void>(fsync(-1));
        static_cast<void>(lseek(descriptor, 0, SEEK_SET));
    };
    traceCalls(work, [&](const ReturnedCall &call) {
        ++calls;
        if (call.synced)
            synced.push_back(*call.synced);
    });
    close(descriptor);
    EXPECT_EQ(synced, std::vector<int>{descriptor});
    EXPECT_GE(calls, 3);
}

} // namespace Faults
