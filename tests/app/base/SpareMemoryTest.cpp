#include "base/SpareMemory.h"

#include "support/Sanitizers.h"
#include "support/SteppingDispatcher.h"
#include "support/TestRegistry.h"

#include <cstddef>
#include <cstring>
#include <fstream>
#include <memory>
#include <vector>

#include <QTest>
#include <unistd.h>

namespace Loadwick {
namespace {

std::size_t residentBytes()
{
    std::size_t total = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

} // namespace

class SpareMemoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void returnsWhatWasFreedBetweenBlocksInUse()
    {
        if (isSanitized)
            QSKIP("a sanitizer has an allocator of its own");
        constexpr std::size_t count = 400;
        constexpr std::size_t size = 50'000;
        std::vector<std::unique_ptr<char[]>> pictures;
        std::vector<std::unique_ptr<char[]>> kept;
        for (std::size_t number = 0; number < count; ++number) {
            pictures.push_back(std::make_unique<char[]>(size));
            std::memset(pictures.back().get(), 1, size);
            kept.push_back(std::make_unique<char[]>(100));
        }
        const std::size_t before = residentBytes();
        pictures.clear();
        SpareMemory::giveBack();
        QVERIFY(residentBytes() + count * size / 2 < before);
    }

    void waitsInTheBackgroundForTheLastOfManyPages()
    {
        const auto dispatcher = std::make_shared<SteppingDispatcher>();
        SpareMemory memory(dispatcher);
        for (int page = 0; page < 8; ++page) {
            memory.giveBackSoon();
            QTest::qWait(200);
        }
        QCOMPARE(dispatcher->backgroundCount(), std::size_t{0});
        QTRY_COMPARE(dispatcher->backgroundCount(), std::size_t{1});
        dispatcher->runAll();
    }

    void isNotGivenBackWithoutAThread()
    {
        const auto dispatcher = std::make_shared<SteppingDispatcher>();
        dispatcher->refuseBackground();
        SpareMemory memory(dispatcher);
        memory.giveBackSoon();
        QTest::qWait(1'200);
        dispatcher->allowBackground();
        memory.giveBackSoon();
        QTRY_COMPARE(dispatcher->backgroundCount(), std::size_t{1});
        dispatcher->runAll();
    }
};

const RegisteredTest<SpareMemoryTest> registered("SpareMemory");

} // namespace Loadwick

#include "SpareMemoryTest.moc"
