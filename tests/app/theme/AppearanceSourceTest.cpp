#include "theme/AppearanceSource.h"

#include "support/TestRegistry.h"

#include <QTest>

namespace Loadwick {

class AppearanceSourceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itsOwnWishesWin()
    {
        const DesktopWishes one{.dark = false, .reducedMotion = true, .accent = QColor(Qt::red)};
        const DesktopWishes other{.dark = true, .reducedMotion = false, .accent = QColor(Qt::blue)};
        QVERIFY(one.orElse(other) == one);
    }

    void absentWishesComeFromTheOther()
    {
        const DesktopWishes one{.dark = true};
        const DesktopWishes other{.dark = false, .moreContrast = true};
        const DesktopWishes both{.dark = true, .moreContrast = true};
        QVERIFY(one.orElse(other) == both);
    }

    void wishesAbsentFromBothStayAbsent()
    {
        QVERIFY(DesktopWishes().orElse({}) == DesktopWishes());
    }

    void aWishForTheOppositeIsNotAbsent()
    {
        QVERIFY(DesktopWishes{.dark = false} != DesktopWishes());
    }

    void textGrowsWithTheDesktops_data()
    {
        QTest::addColumn<double>("points");
        QTest::addColumn<double>("factor");
        QTest::addColumn<double>("scale");
        QTest::newRow("small") << 8.0 << 1.0 << 1.0;
        QTest::newRow("usual") << 10.0 << 1.0 << 1.0;
        QTest::newRow("as GNOME comes") << 11.0 << 1.0 << 1.0;
        QTest::newRow("large") << 12.0 << 1.0 << 1.2;
        QTest::newRow("fourteen points") << 14.0 << 1.0 << 1.4;
        QTest::newRow("beyond") << 40.0 << 1.0 << 1.4;
        QTest::newRow("by a factor") << 10.0 << 1.25 << 1.25;
        QTest::newRow("by both") << 12.0 << 1.1 << 1.32;
        QTest::newRow("a factor beyond") << 10.0 << 3.0 << 1.4;
        QTest::newRow("made smaller") << 10.0 << 0.5 << 1.0;
    }

    void textGrowsWithTheDesktops()
    {
        QFETCH(const double, points);
        QFETCH(const double, factor);
        QFETCH(const double, scale);
        const DesktopWishes wishes{.fontPoints = points, .textFactor = factor};
        QCOMPARE(wishes.textScale(), scale);
    }

    void withoutAWishTextKeepsItsSize() { QCOMPARE(DesktopWishes().textScale(), 1.0); }
};

const RegisteredTest<AppearanceSourceTest> registered("AppearanceSource");

} // namespace Loadwick

#include "AppearanceSourceTest.moc"
