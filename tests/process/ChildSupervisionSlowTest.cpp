#include "process/ChildSupervision.h"

#include <new>
#include <optional>
#include <thread>

#include <gtest/gtest.h>

#include "samples/TemporaryFolder.h"
#include "support/ProcessCensus.h"
#include "support/ProcessMemory.h"
#include "support/Sanitizers.h"
#include "support/Stopwatch.h"

namespace Loadwick {

TEST(ChildSupervisionSlowTest, killsItsChildWhenMemoryForItsOutputRunsOut)
{
    if (isSanitized)
        GTEST_SKIP() << "a sanitizer needs memory of its own";
    const TemporaryFolder folder;
    const std::string mark = folder.path().string() + "/may-print";
    ChildSupervision::Request request{.command = {{}, {}, {}, std::nullopt},
                                      .limits = {.timeoutSeconds = 30,
                                                 .killGraceSeconds = 0.1,
                                                 .readerGraceSeconds = 0.1,
                                                 .captureLimit = std::size_t{1} << 30U},
                                      .capture = ChildSupervision::Capture::bothStreams,
                                      .shutdown = nullptr};
    request.command.executable = folder.writeScript(
        "command", "#!/bin/sh\nuntil [ -e '" + mark +
                       "' ]; do sleep 0.02; done\nhead -c 100000000 /dev/zero\nexec sleep 25\n");
    request.command.environment = {{"PATH", "/usr/bin:/bin"}};
    const ProcessCensus before = ProcessCensus::now();
    std::optional<MemoryShortage> shortage;
    std::thread starving([&] {
        // This thread and two readers: every thread that needs memory to start has started.
        EXPECT_TRUE(eventually([&] { return ProcessCensus::now().threads >= before.threads + 3; }));
        shortage.emplace(16U << 20U);
        folder.write("may-print", "");
    });
    const Stopwatch watch;
    EXPECT_THROW((void)ChildSupervision::run(request), std::bad_alloc);
    EXPECT_LT(watch.seconds(), 15);
    starving.join();
    shortage.reset();
    EXPECT_TRUE(eventually([&] { return ProcessCensus::now().isWithin(before); }));
}

} // namespace Loadwick
