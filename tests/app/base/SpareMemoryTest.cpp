#include "base/SpareMemory.h"

#include "support/Sanitizers.h"
#include "support/SteppingDispatcher.h"
#include "support/TestRegistry.h"
#include "support/WindowFixture.h"

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

/// Blocks whose memory the C library keeps when they are freed: there are others between them.
class ScatteredBlocks
{
public:
    ScatteredBlocks()
    {
        for (std::size_t number = 0; number < count; ++number) {
            m_blocks.push_back(std::make_unique<char[]>(size));
            std::memset(m_blocks.back().get(), 1, size);
            m_between.push_back(std::make_unique<char[]>(100));
        }
    }

    [[nodiscard]] static std::size_t bytes() { return count * size; }
    void free() { m_blocks.clear(); }

private:
    static constexpr std::size_t count = 400;
    static constexpr std::size_t size = 50'000;
    std::vector<std::unique_ptr<char[]>> m_blocks;
    std::vector<std::unique_ptr<char[]>> m_between;
};

} // namespace

class SpareMemoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void returnsWhatWasFreedBetweenBlocksInUse()
    {
        if (isSanitized)
            QSKIP("a sanitizer has an allocator of its own");
        ScatteredBlocks blocks;
        const std::size_t before = residentBytes();
        blocks.free();
        SpareMemory::giveBack();
        QVERIFY(residentBytes() + blocks.bytes() / 2 < before);
    }

    // Reading one takes several times the memory of the scans in it.
    void isGivenBackOnceAHistoryHasArrived()
    {
        if (isSanitized)
            QSKIP("a sanitizer has an allocator of its own");
        WindowFixture window;
        ScatteredBlocks blocks;
        const std::size_t before = residentBytes();
        blocks.free();
        window.loadwick().model().history().set({});
        QTRY_VERIFY(residentBytes() + blocks.bytes() / 2 < before);
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
