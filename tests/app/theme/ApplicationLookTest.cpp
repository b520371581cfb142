#include "theme/ApplicationLook.h"

#include <memory>
#include <utility>
#include <vector>

#include <QApplication>
#include <QMenu>
#include <QProxyStyle>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QTest>
#include <QToolTip>

#include "support/FakeAppearanceSource.h"
#include "support/TestRegistry.h"
#include "theme/Appearance.h"
#include "theme/ApplicationStyle.h"
#include "theme/DesktopAppearanceSource.h"

namespace Loadwick {
namespace {

/// A desktop whose own palette has that ground.
class DesktopStyle final : public QProxyStyle
{
public:
    explicit DesktopStyle(const QColor &ground)
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))), m_ground(ground)
    {}
    using QProxyStyle::polish;
    void polish(QPalette &palette) override { palette = QPalette(Qt::gray, m_ground); }

private:
    QColor m_ground;
};

void setDesktopGround(const QColor &ground)
{
    QApplication::setStyle(new DesktopStyle(ground));
}

bool isDark(const QPalette &palette)
{
    return palette.window().color().lightness() < 50 && palette.text().color().lightness() > 200;
}

bool isLight(const QPalette &palette)
{
    return palette.window().color().lightness() > 200 && palette.text().color().lightness() < 50;
}

} // namespace

/// An engine over a desktop that states its wish for a scheme, or leaves it to its palette.
class ApplicationLookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theApplicationIsLightOrDarkWithTheWindow();
    void whatOpensOverDialogsIsToo();
    void widgetsUseTheWindowsFontSize();
    void ownColoursAreNotTakenForTheDesktops();
    void theDesktopsPaletteIsFollowedBehindOwnColours();

private:
    FakeAppearanceSource *m_wish = nullptr; ///< asked before the palette
    std::unique_ptr<QQmlEngine> m_engine;
    Appearance *m_appearance = nullptr; ///< the engine's
};

void ApplicationLookTest::init()
{
    setDesktopGround(Qt::white);
    auto wish = std::make_unique<FakeAppearanceSource>();
    m_wish = wish.get();
    DesktopAppearanceSource::Sources sources;
    sources.push_back(std::move(wish));
    sources.push_back(std::make_unique<PaletteAppearanceSource>());
    m_engine = std::make_unique<QQmlEngine>();
    new DesktopAppearanceSource(std::move(sources), m_engine.get());
    ApplicationStyle::addModulePath(*m_engine);
    ApplicationLook::follow(*m_engine);
    const int type = qmlTypeId("Loadwick", 1, 0, "Appearance");
    m_appearance = m_engine->singletonInstance<Appearance *>(type);
}

void ApplicationLookTest::cleanup()
{
    m_engine.reset();
}

void ApplicationLookTest::theApplicationIsLightOrDarkWithTheWindow()
{
    QVERIFY(isLight(QGuiApplication::palette()));
    m_wish->setPreferences({.dark = true});
    QVERIFY(isDark(QGuiApplication::palette()));
    m_wish->setPreferences({.dark = false});
    QVERIFY(isLight(QGuiApplication::palette()));
}

void ApplicationLookTest::whatOpensOverDialogsIsToo()
{
    QWidget dialog;
    QMenu menu(&dialog);
    dialog.show();
    menu.ensurePolished();
    m_wish->setPreferences({.dark = true});
    QVERIFY(isDark(dialog.palette()));
    QVERIFY(isDark(menu.palette()));
    QVERIFY(isDark(QApplication::palette("QTipLabel")));
    QCOMPARE(dialog.palette().color(QPalette::Disabled, QPalette::Window),
             dialog.palette().color(QPalette::Active, QPalette::Window));
}

void ApplicationLookTest::widgetsUseTheWindowsFontSize()
{
    QWidget dialog;
    dialog.show();
    QCOMPARE(dialog.font().pixelSize(), 13);
    m_appearance->setTextScale(1.5);
    QCOMPARE(dialog.font().pixelSize(), 20);
}

void ApplicationLookTest::ownColoursAreNotTakenForTheDesktops()
{
    m_wish->setPreferences({.dark = true});
    QVERIFY(m_appearance->dark());
    const QSignalSpy changes(m_appearance, &Appearance::changed);
    m_wish->setPreferences({});
    QVERIFY(!m_appearance->dark());
    QVERIFY(isLight(QGuiApplication::palette()));
    QCoreApplication::processEvents();
    QCOMPARE(changes.size(), 1);
}

void ApplicationLookTest::theDesktopsPaletteIsFollowedBehindOwnColours()
{
    const std::vector<std::pair<QColor, bool>> grounds{
        {Qt::black, true}, {Qt::white, false}, {Qt::black, true}};
    for (const auto &[ground, dark] : grounds) {
        setDesktopGround(ground);
        QTRY_COMPARE(m_appearance->dark(), dark);
        QCOMPARE(isDark(QGuiApplication::palette()), dark);
    }
    m_wish->setPreferences({.dark = false});
    QVERIFY(isLight(QGuiApplication::palette()));
    m_wish->setPreferences({});
    QVERIFY(isDark(QGuiApplication::palette()));
}

const RegisteredTest<ApplicationLookTest> registered("ApplicationLook");

} // namespace Loadwick

#include "ApplicationLookTest.moc"
