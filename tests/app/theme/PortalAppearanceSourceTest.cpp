#include "theme/PortalAppearanceSource.h"

#include "base/QtTaskDispatcher.h"
#include "support/PrivateBus.h"
#include "support/StandInPortal.h"
#include "support/SteppingDispatcher.h"
#include "support/TestRegistry.h"

#include <QDBusArgument>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

namespace Loadwick {
namespace {

const auto common = QStringLiteral("org.freedesktop.appearance");
const auto gnome = QStringLiteral("org.gnome.desktop.interface");
const auto scheme = QStringLiteral("color-scheme");
const auto animations = QStringLiteral("enable-animations");
const auto accent = QStringLiteral("accent-color");

QVariant colorParts(double red, double green, double blue)
{
    QDBusArgument parts;
    parts.beginStructure();
    parts << red << green << blue;
    parts.endStructure();
    return QVariant::fromValue(parts);
}

const int keyCount = static_cast<int>(PortalAnswers::keys().size());

} // namespace

class PortalAppearanceSourceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dispatcher = std::make_shared<QtTaskDispatcher>(m_interface);
        m_bus = std::make_unique<PrivateBus>();
    }

    void cleanup()
    {
        m_source.reset();
        m_portal.reset();
        m_bus.reset();
    }

    void aDarkDesktopIsDarkFromTheStart()
    {
        portal().set(common, scheme, 1U);
        portal().set(gnome, animations, false);
        PortalAppearanceSource &asked = source();
        QVERIFY(!asked.preferences().dark);
        QTRY_VERIFY(asked.prefersDark());
        QTRY_VERIFY(asked.prefersReducedMotion());
        QVERIFY(!asked.preferences().moreContrast);
        QVERIFY(!asked.preferences().accent);
    }

    void followsChangesWhileItRuns()
    {
        portal().set(common, scheme, 1U);
        PortalAppearanceSource &asked = source();
        QTRY_VERIFY(asked.prefersDark());
        portal().change(common, scheme, 2U);
        QTRY_VERIFY(!asked.prefersDark());
        portal().change(common, QStringLiteral("contrast"), 1U);
        QTRY_VERIFY(asked.prefersMoreContrast());
        portal().change(gnome, animations, false);
        QTRY_VERIFY(asked.prefersReducedMotion());
        portal().change(gnome, animations, true);
        QTRY_VERIFY(!asked.prefersReducedMotion());
    }

    void takesTheAccent()
    {
        portal().set(common, accent, colorParts(1.0, 0.0, 0.0));
        PortalAppearanceSource &asked = source();
        QTRY_COMPARE(asked.preferences().accent, std::optional(QColor::fromRgbF(1.0F, 0.0F, 0.0F)));
        portal().change(common, accent, colorParts(0.0, 0.0, 1.0));
        QTRY_COMPARE(asked.preferences().accent, std::optional(QColor::fromRgbF(0.0F, 0.0F, 1.0F)));
    }

    void ignoresAnAccentOutOfRange()
    {
        portal().set(common, accent, colorParts(1.0, 0.0, 0.0));
        PortalAppearanceSource &asked = source();
        QTRY_VERIFY(asked.preferences().accent);
        portal().change(common, accent, colorParts(-1.0, -1.0, -1.0));
        QTRY_VERIFY(!asked.preferences().accent);
    }

    void takesTheSizeOfText()
    {
        portal().set(gnome, QStringLiteral("font-name"), QStringLiteral("Cantarell 12"));
        PortalAppearanceSource &asked = source();
        QTRY_COMPARE(asked.preferences().textScale(), 1.2);
        portal().change(gnome, QStringLiteral("text-scaling-factor"), 1.1);
        QTRY_COMPARE(asked.preferences().textScale(), 1.32);
    }

    void signalsOnlyChanges()
    {
        portal().set(common, scheme, 1U);
        PortalAppearanceSource &asked = source();
        QTRY_VERIFY(asked.prefersDark());
        const QSignalSpy changes(&asked, &AppearanceSource::changed);
        portal().change(common, scheme, 1U);
        portal().change(gnome, QStringLiteral("clock-format"), QStringLiteral("24h"));
        portal().change(common, QStringLiteral("contrast"), 1U);
        QTRY_VERIFY(asked.prefersMoreContrast());
        QCOMPARE(changes.size(), 1);
    }

    void ignoresOtherSenders()
    {
        portal().set(common, scheme, 2U);
        PortalAppearanceSource &asked = source();
        QTRY_VERIFY(asked.preferences().dark);
        QDBusConnection other = m_bus->connection(newName());
        QDBusMessage lie = QDBusMessage::createSignal(
            QStringLiteral("/org/freedesktop/portal/desktop"),
            QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
        lie << common << scheme << QVariant::fromValue(QDBusVariant(1U));
        QVERIFY(other.send(lie));
        portal().change(common, QStringLiteral("contrast"), 1U);
        QTRY_VERIFY(asked.prefersMoreContrast());
        QVERIFY(!asked.prefersDark());
    }

    void withoutABusThereAreNoPreferences()
    {
        const auto stepping = std::make_shared<SteppingDispatcher>();
        const PortalAppearanceSource asked(
            stepping, [] { return QDBusConnection(QStringLiteral("no such bus")); });
        stepping->runAll();
        QVERIFY(asked.preferences() == DesktopPreferences());
    }

    void withoutAPortalThereAreNoPreferences()
    {
        PortalAppearanceSource &asked = source();
        const QSignalSpy changes(&asked, &AppearanceSource::changed);
        QTest::qWait(200);
        QVERIFY(changes.isEmpty());
        QVERIFY(asked.preferences() == DesktopPreferences());
    }

    void aPortalThatNeverAnswersBlocksNothing()
    {
        portal().stopAnswering();
        QElapsedTimer timer;
        timer.start();
        PortalAppearanceSource &asked = source();
        QTRY_COMPARE(portal().questionCount(), keyCount);
        QVERIFY(asked.preferences() == DesktopPreferences());
        m_source.reset();
        QVERIFY2(timer.elapsed() < 3'000, qPrintable(QString::number(timer.elapsed())));
    }

    void followsAPortalThatNeverAnswers()
    {
        portal().stopAnswering();
        PortalAppearanceSource &asked = source();
        QTRY_COMPARE(portal().questionCount(), keyCount);
        portal().change(common, scheme, 1U);
        QTRY_VERIFY(asked.prefersDark());
    }

    void connectsInTheBackground()
    {
        const auto stepping = std::make_shared<SteppingDispatcher>();
        bool isConnected = false;
        const PortalAppearanceSource asked(stepping, [&isConnected] {
            isConnected = true;
            return QDBusConnection(QStringLiteral("no such bus"));
        });
        QVERIFY(!isConnected);
        QCOMPARE(stepping->backgroundCount(), std::size_t(1));
        stepping->runAll();
        QVERIFY(isConnected);
    }

    void canBeDestroyedBeforeTheBusIsConnected()
    {
        portal().set(common, scheme, 1U);
        const auto stepping = std::make_shared<SteppingDispatcher>();
        const QDBusConnection bus = m_bus->connection(newName());
        std::make_unique<PortalAppearanceSource>(stepping, [bus] { return bus; }).reset();
        stepping->runAll();
        QTest::qWait(50);
        QCOMPARE(portal().questionCount(), 0);
    }

    void needsNoThread()
    {
        const auto stepping = std::make_shared<SteppingDispatcher>();
        stepping->refuseBackground();
        const PortalAppearanceSource asked(stepping);
        QVERIFY(asked.preferences() == DesktopPreferences());
    }

private:
    [[nodiscard]] QString newName() { return QStringLiteral("connection %1").arg(++m_count); }

    [[nodiscard]] StandInPortal &portal()
    {
        if (!m_portal)
            m_portal = std::make_unique<StandInPortal>(m_bus->connection(newName()));
        return *m_portal;
    }

    [[nodiscard]] PortalAppearanceSource &source()
    {
        const QDBusConnection bus = m_bus->connection(newName());
        m_source = std::make_unique<PortalAppearanceSource>(m_dispatcher, [bus] { return bus; });
        return *m_source;
    }

    QObject m_interface;
    std::shared_ptr<TaskDispatcher> m_dispatcher;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<StandInPortal> m_portal;
    std::unique_ptr<PortalAppearanceSource> m_source;
    int m_count = 0;
};

const RegisteredTest<PortalAppearanceSourceTest> registered("PortalAppearanceSource");

} // namespace Loadwick

#include "PortalAppearanceSourceTest.moc"
