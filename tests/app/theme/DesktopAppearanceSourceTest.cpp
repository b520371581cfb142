#include "theme/DesktopAppearanceSource.h"

#include "base/QtTaskDispatcher.h"
#include "samples/TemporaryFolder.h"
#include "support/EnvironmentSwap.h"
#include "support/FakeAppearanceSource.h"
#include "support/PrivateBus.h"
#include "support/StandInPortal.h"
#include "support/SteppingDispatcher.h"
#include "support/TestRegistry.h"

#include <array>

#include <QGuiApplication>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>

namespace Loadwick {

class DesktopAppearanceSourceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        DesktopAppearanceSource::Sources sources;
        for (FakeAppearanceSource *&fake : m_fakes) {
            auto made = std::make_unique<FakeAppearanceSource>();
            fake = made.get();
            sources.push_back(std::move(made));
        }
        m_source = std::make_unique<DesktopAppearanceSource>(std::move(sources));
    }

    void asksTheSourcesInOrder()
    {
        m_fakes[2]->setPreferences({.dark = true});
        QVERIFY(m_source->prefersDark());
        m_fakes[1]->setPreferences({.dark = false});
        QVERIFY(!m_source->prefersDark());
        m_fakes[0]->setPreferences({.dark = true});
        QVERIFY(m_source->prefersDark());
    }

    void eachPreferenceMayComeFromAnotherSource()
    {
        m_fakes[0]->setPreferences({.reducedMotion = true});
        m_fakes[1]->setPreferences({.reducedMotion = false, .moreContrast = true});
        m_fakes[2]->setPreferences({.dark = true, .accent = QColor(Qt::green)});
        const DesktopPreferences all{
            .dark = true, .reducedMotion = true, .moreContrast = true, .accent = QColor(Qt::green)};
        QVERIFY(m_source->preferences() == all);
    }

    void aWithdrawnPreferenceFallsBackToTheNextSource()
    {
        m_fakes[2]->setPreferences({.dark = false});
        m_fakes[0]->setPreferences({.dark = true});
        m_fakes[0]->setPreferences({});
        QVERIFY(!m_source->prefersDark());
    }

    void signalsOnlyEffectiveChanges()
    {
        m_fakes[0]->setPreferences({.dark = true});
        const QSignalSpy changes(m_source.get(), &AppearanceSource::changed);
        m_fakes[1]->setPreferences({.dark = false});
        QVERIFY(changes.isEmpty());
        m_fakes[1]->setPreferences({.dark = false, .moreContrast = true});
        QCOMPARE(changes.size(), 1);
    }

    void kdeComesBeforeThePortalOnKde_data()
    {
        QTest::addColumn<QString>("desktop");
        QTest::addColumn<bool>("reducesMotion");
        QTest::newRow("KDE") << QStringLiteral("KDE") << false;
        QTest::newRow("unknown") << QString() << true;
    }

    // KDE's file asks for motion, the portal for none.
    void kdeComesBeforeThePortalOnKde()
    {
        QFETCH(const QString, desktop);
        QFETCH(const bool, reducesMotion);
        PrivateBus bus;
        StandInPortal portal(bus.connection(QStringLiteral("portal")));
        const QString space = QStringLiteral("org.gnome.desktop.interface");
        portal.set(space, QStringLiteral("enable-animations"), false);
        portal.set(space, QStringLiteral("font-name"),
                   QStringLiteral("Cantarell 11")); // asked later
        const TemporaryFolder folder;
        folder.write("kdeglobals",
                     "[General]\nAccentColor=1,2,3\n[KDE]\nAnimationDurationFactor=1\n");
        const EnvironmentSwap swapped({"XDG_CURRENT_DESKTOP=" + desktop.toStdString(),
                                       "XDG_CONFIG_HOME=" + folder.path().string()});
        QObject receiver;
        const auto source = DesktopAppearanceSource::ofUser(
            std::make_shared<QtTaskDispatcher>(receiver),
            [connection = bus.connection(QStringLiteral("program"))] { return connection; });
        QTRY_VERIFY(source->preferences().fontPoints && source->preferences().accent);
        QCOMPARE(source->prefersReducedMotion(), reducesMotion);
    }

    void fallsBackToThePalette()
    {
        const auto stepping = std::make_shared<SteppingDispatcher>();
        const auto source = DesktopAppearanceSource::ofUser(stepping);
        QGuiApplication::setPalette(QPalette(Qt::gray, Qt::black));
        QTRY_VERIFY(source->prefersDark());
        QGuiApplication::setPalette(QPalette(Qt::gray, Qt::white));
        QTRY_VERIFY(!source->prefersDark());
        stepping->discardAll();
    }

    void aPaletteWithADarkWindowIsDark_data()
    {
        QTest::addColumn<QColor>("window");
        QTest::addColumn<bool>("dark");
        QTest::newRow("white") << QColor(255, 255, 255) << false;
        QTest::newRow("just light") << QColor(128, 128, 128) << false;
        QTest::newRow("just dark") << QColor(127, 127, 127) << true;
        QTest::newRow("black") << QColor(0, 0, 0) << true;
    }

    void aPaletteWithADarkWindowIsDark()
    {
        QFETCH(QColor, window);
        QFETCH(bool, dark);
        const PaletteAppearanceSource source;
        QGuiApplication::setPalette(QPalette(Qt::gray, window));
        QVERIFY(source.preferences() == DesktopPreferences{.dark = dark});
    }

private:
    std::array<FakeAppearanceSource *, 3> m_fakes{};
    std::unique_ptr<DesktopAppearanceSource> m_source;
};

const RegisteredTest<DesktopAppearanceSourceTest> registered("DesktopAppearanceSource");

} // namespace Loadwick

#include "DesktopAppearanceSourceTest.moc"
