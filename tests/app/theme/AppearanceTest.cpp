#include "theme/Appearance.h"

#include "support/FakeAppearanceSource.h"
#include "support/TestRegistry.h"

#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

namespace Loadwick {

class AppearanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksTheDesktop()
    {
        FakeAppearanceSource desktop;
        const Appearance appearance(desktop);
        QVERIFY(!appearance.dark());
        QVERIFY(!appearance.reduceMotion());
    }

    void followsTheDesktop()
    {
        FakeAppearanceSource desktop;
        const Appearance appearance(desktop);
        const QSignalSpy changes(&appearance, &Appearance::changed);
        desktop.prefer(true, true);
        QVERIFY(appearance.dark());
        QVERIFY(appearance.reduceMotion());
        QCOMPARE(changes.size(), 1);
    }

    void anOverrideWins()
    {
        FakeAppearanceSource desktop;
        desktop.prefer(true, true);
        Appearance appearance(desktop);
        appearance.setScheme(Appearance::Light);
        appearance.setMotion(Appearance::Full);
        QVERIFY(!appearance.dark());
        QVERIFY(!appearance.reduceMotion());
    }

    void returnsToTheDesktop()
    {
        FakeAppearanceSource desktop;
        desktop.prefer(true, true);
        Appearance appearance(desktop);
        appearance.setScheme(Appearance::Light);
        appearance.setMotion(Appearance::Full);
        appearance.setScheme(Appearance::DesktopScheme);
        appearance.setMotion(Appearance::DesktopMotion);
        QVERIFY(appearance.dark());
        QVERIFY(appearance.reduceMotion());
    }

    void signalsEachOverrideOnce()
    {
        FakeAppearanceSource desktop;
        Appearance appearance(desktop);
        const QSignalSpy changes(&appearance, &Appearance::changed);
        appearance.setScheme(Appearance::Dark);
        appearance.setScheme(Appearance::Dark);
        appearance.setMotion(Appearance::Reduced);
        appearance.setMotion(Appearance::Reduced);
        QCOMPARE(changes.size(), 2);
    }

    void followsAndOverridesTheContrast()
    {
        FakeAppearanceSource desktop;
        Appearance appearance(desktop);
        QVERIFY(!appearance.moreContrast());
        desktop.setPreferences({.moreContrast = true});
        QVERIFY(appearance.moreContrast());
        const QSignalSpy changes(&appearance, &Appearance::changed);
        appearance.setContrast(Appearance::Standard);
        appearance.setContrast(Appearance::Standard);
        QVERIFY(!appearance.moreContrast());
        QCOMPARE(changes.size(), 1);
        desktop.setPreferences({});
        appearance.setContrast(Appearance::More);
        QVERIFY(appearance.moreContrast());
    }

    void hasAnAccentOnlyIfTheDesktopHasOne()
    {
        FakeAppearanceSource desktop;
        const Appearance appearance(desktop);
        QVERIFY(!appearance.hasAccent());
        desktop.setPreferences({.accent = QColor(Qt::magenta)});
        QVERIFY(appearance.hasAccent());
        QCOMPARE(appearance.accent(), QColor(Qt::magenta));
    }

    void findsTheSourceAmongTheEnginesChildren()
    {
        QQmlEngine engine;
        auto *desktop = new FakeAppearanceSource(&engine);
        desktop->prefer(true, false);
        const std::unique_ptr<Appearance> appearance(Appearance::create(&engine, &engine));
        QVERIFY(appearance->dark());
    }
};

const RegisteredTest<AppearanceTest> registered("Appearance");

} // namespace Loadwick

#include "AppearanceTest.moc"
