#include "overview/HeadroomScore.h"

#include <limits>

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

class HeadroomScoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysHowMuchOfTheScaleIsFree_data()
    {
        QTest::addColumn<qint64>("total");
        QTest::addColumn<int>("score");
        QTest::newRow("nothing leaves all of it") << qint64(0) << 100;
        QTest::newRow("less than nothing leaves no more") << qint64(-1) << 100;
        QTest::newRow("a single token is cut off") << qint64(1) << 99;
        QTest::newRow("lean") << qint64(27'654) << 69;
        QTest::newRow("a third") << qint64(30'000) << 66;
        QTest::newRow("half") << qint64(45'000) << 50;
        QTest::newRow("two thirds") << qint64(60'000) << 33;
        QTest::newRow("the last of the normal scale") << qint64(89'999) << 0;
        QTest::newRow("the first of the next scale") << qint64(90'000) << 25;
        QTest::newRow("95,000 of 120,000") << qint64(95'000) << 20;
        QTest::newRow("142,318 of 150,000") << qint64(142'318) << 5;
        QTest::newRow("nine million") << qint64(9'000'000) << 0;
        QTest::newRow("the largest") << std::numeric_limits<qint64>::max() << 0;
    }

    void saysHowMuchOfTheScaleIsFree()
    {
        QFETCH(const qint64, total);
        QTEST(headroomScore(total), "score");
    }
};

const RegisteredTest<HeadroomScoreTest> registered("HeadroomScore");

} // namespace Loadwick

#include "HeadroomScoreTest.moc"
