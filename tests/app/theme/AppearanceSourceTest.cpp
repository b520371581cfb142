#include "theme/AppearanceSource.h"

#include "support/TestRegistry.h"

#include <QTest>

namespace Loadwick {

class AppearanceSourceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itsOwnPreferencesWin()
    {
        const DesktopPreferences one{
            .dark = false, .reducedMotion = true, .accent = QColor(Qt::red)};
        const DesktopPreferences other{
            .dark = true, .reducedMotion = false, .accent = QColor(Qt::blue)};
        QVERIFY(one.orElse(other) == one);
    }

    void absentPreferencesComeFromTheOther()
    {
        const DesktopPreferences one{.dark = true};
        const DesktopPreferences other{.dark = false, .moreContrast = true};
        const DesktopPreferences both{.dark = true, .moreContrast = true};
        QVERIFY(one.orElse(other) == both);
    }

    void preferencesAbsentFromBothStayAbsent()
    {
        QVERIFY(DesktopPreferences().orElse({}) == DesktopPreferences());
    }

    void anOppositePreferenceIsNotAbsent()
    {
        QVERIFY(DesktopPreferences{.dark = false} != DesktopPreferences());
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
        QTest::newRow("beyond") << 40.0 << 1.0 << 2.0;
        QTest::newRow("by a factor") << 10.0 << 1.25 << 1.25;
        QTest::newRow("by both") << 12.0 << 1.1 << 1.32;
        QTest::newRow("a factor beyond") << 10.0 << 3.0 << 2.0;
        QTest::newRow("made smaller") << 10.0 << 0.5 << 1.0;
    }

    void textGrowsWithTheDesktops()
    {
        QFETCH(const double, points);
        QFETCH(const double, factor);
        QFETCH(const double, scale);
        const DesktopPreferences preferences{.fontPoints = points, .textFactor = factor};
        QCOMPARE(preferences.textScale(), scale);
    }

    void withoutAPreferenceTextKeepsItsSize() { QCOMPARE(DesktopPreferences().textScale(), 1.0); }
};

const RegisteredTest<AppearanceSourceTest> registered("AppearanceSource");

} // namespace Loadwick

#include "AppearanceSourceTest.moc"
