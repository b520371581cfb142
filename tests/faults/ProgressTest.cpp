#include "faults/driver/Progress.h"

#include <csignal>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Faults {

TEST(ProgressTest, isVisibleFromOutsideTheProcess)
{
    Progress progress;
    EXPECT_EQ(progress.of(getpid()).find("not begun"), 0U);
    const pid_t child = fork();
    if (child == 0) {
        progress.begin("waiting");
        raise(SIGSTOP);
        _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, WUNTRACED), child);
    EXPECT_EQ(progress.of(child).find("waiting"), 0U);
    kill(child, SIGKILL);
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(progress.of(child), "waiting");
}

} // namespace Faults
