#include "overview/ElapsedTime.h"

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

class ElapsedTimeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAsAStopwatch_data()
    {
        QTest::addColumn<int>("seconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("start") << 0 << QStringLiteral("0:00");
        QTest::newRow("seconds") << 7 << QStringLiteral("0:07");
        QTest::newRow("minute") << 60 << QStringLiteral("1:00");
        QTest::newRow("long scan") << 266 << QStringLiteral("4:26");
        QTest::newRow("over an hour") << 3660 << QStringLiteral("61:00");
        QTest::newRow("clock set back") << -5 << QStringLiteral("0:00");
    }

    void readsAsAStopwatch()
    {
        QFETCH(const int, seconds);
        QFETCH(const QString, text);
        QCOMPARE(elapsedTimeText(std::chrono::seconds(seconds)), text);
    }
};

const RegisteredTest<ElapsedTimeTest> registered("ElapsedTime");

} // namespace Loadwick

#include "ElapsedTimeTest.moc"
