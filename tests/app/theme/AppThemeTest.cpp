#include "charts/TreemapChart.h"
#include "support/FakeAppearanceSource.h"
#include "support/TestRegistry.h"
#include "theme/Appearance.h"
#include "theme/ApplicationStyle.h"
#include "theme/ColorContrast.h"

#include <array>

#include <QFont>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

namespace Loadwick {
namespace {

constexpr std::array grounds = {"window", "sidebar", "surface"};
constexpr std::array textColors = {"text",         "secondaryText", "accent",
                                   "bandLeanText", "bandHeavyText", "bandExcessiveText"};
constexpr double leastForText = 4.5;
constexpr double leastForShapes = 3.0;

} // namespace

class AppThemeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_engine = std::make_unique<QQmlEngine>();
        m_desktop = new FakeAppearanceSource(m_engine.get());
        ApplicationStyle::addModulePath(*m_engine);
        QQmlComponent component(m_engine.get());
        component.setData("import QtQml\nimport Loadwick\n"
                          "QtObject {\n"
                          "    readonly property QtObject theme: AppTheme\n"
                          "    readonly property QtObject appearance: Appearance\n"
                          "}",
                          QUrl());
        m_singletons.reset(component.create());
        QVERIFY2(m_singletons, qPrintable(component.errorString()));
    }

    void cleanup()
    {
        m_singletons.reset();
        m_engine.reset();
    }

    void textIsReadableOnEveryGround_data()
    {
        QTest::addColumn<int>("scheme");
        QTest::addColumn<QByteArray>("role");
        QTest::addColumn<QByteArray>("ground");
        for (const auto scheme : {Appearance::Light, Appearance::Dark}) {
            for (const char *role : textColors) {
                for (const char *ground : grounds) {
                    QTest::addRow("%s %s on %s", scheme == Appearance::Dark ? "dark" : "light",
                                  role, ground)
                        << int(scheme) << QByteArray(role) << QByteArray(ground);
                }
            }
        }
    }

    void textIsReadableOnEveryGround()
    {
        QFETCH(int, scheme);
        QFETCH(QByteArray, role);
        QFETCH(QByteArray, ground);
        use(scheme);
        QVERIFY(color(role).isValid());
        QVERIFY(contrast(color(role), color(ground)) >= leastForText);
    }

    void aPillsTextIsReadableOnItsCapsule_data() { textIsReadableOnEveryGround_data(); }

    void aPillsTextIsReadableOnItsCapsule()
    {
        QFETCH(int, scheme);
        QFETCH(QByteArray, role);
        QFETCH(QByteArray, ground);
        use(scheme);
        QColor capsule = color(role);
        capsule.setAlphaF(value("tintOpacity").toFloat());
        QVERIFY(contrast(color(role), blended(capsule, color(ground))) >= leastForText);
    }

    void theMarkOfAStateStandsOutFromItsCircle_data() { schemes(); }

    void theMarkOfAStateStandsOutFromItsCircle()
    {
        QFETCH(int, scheme);
        use(scheme);
        for (const char *role : {"secondaryText", "accent", "bandExcessive"}) {
            QColor circle = color(role);
            circle.setAlphaF(value("tintOpacity").toFloat());
            const QColor ground = blended(circle, color("window"));
            QVERIFY2(contrast(color(role), ground) >= leastForShapes, role);
        }
    }

    void aProvenanceMarkIsReadable_data() { schemes(); }

    void aProvenanceMarkIsReadable()
    {
        QFETCH(int, scheme);
        use(scheme);
        for (const char *ground : grounds) {
            const QColor capsule = blended(color("quietFill"), color(ground));
            QVERIFY(contrast(color("secondaryText"), capsule) >= leastForText);
        }
    }

    void theProminentButtonIsReadable_data() { schemes(); }

    void theProminentButtonIsReadable()
    {
        QFETCH(int, scheme);
        use(scheme);
        QVERIFY(contrast(color("accentText"), color("accent")) >= leastForText);
    }

    void theSelectedPageIsReadable_data() { schemes(); }

    void theSelectedPageIsReadable()
    {
        QFETCH(int, scheme);
        use(scheme);
        const QColor row = blended(color("selectionFill"), color("sidebar"));
        QVERIFY(contrast(color("accent"), row) >= leastForText);
    }

    void theNameOnATileIsReadable_data() { schemes(); }

    void theNameOnATileIsReadable()
    {
        QFETCH(int, scheme);
        use(scheme);
        const auto tiles = value("chartColors").value<QList<QColor>>();
        for (const char *opacity : {"tileOpacity", "currentTileOpacity"}) {
            for (QColor tile : tiles) {
                tile.setAlphaF(value(opacity).toFloat());
                const QColor ground = blended(tile, color("surface"));
                QVERIFY2(contrast(color("text"), ground) >= leastForText, qPrintable(tile.name()));
            }
        }
    }

    void theNameOnADimmedTileIsReadable_data() { schemes(); }

    void theNameOnADimmedTileIsReadable()
    {
        QFETCH(int, scheme);
        use(scheme);
        const double opacity = value("tileOpacity").toDouble() * value("tileDimming").toDouble();
        QColor name = color("text");
        name.setAlphaF(float(TreemapChart::dimmedNameOpacity));
        const auto tiles = value("chartColors").value<QList<QColor>>();
        for (QColor tile : tiles) {
            tile.setAlphaF(float(opacity));
            const QColor ground = blended(tile, color("surface"));
            QVERIFY2(contrast(blended(name, ground), ground) >= leastForText,
                     qPrintable(tile.name()));
        }
    }

    void shapesStandOutFromTheCard_data() { schemes(); }

    void shapesStandOutFromTheCard()
    {
        QFETCH(int, scheme);
        use(scheme);
        const QList<QColor> all = shapes();
        for (const QColor &shape : all)
            QVERIFY2(contrast(shape, color("surface")) >= leastForShapes, qPrintable(shape.name()));
    }

    void shapesOfABandAndItsTextDiffer()
    {
        use(Appearance::Light);
        QVERIFY(color("bandHeavy") != color("bandHeavyText"));
    }

    void thereAreFiveChartColors()
    {
        QCOMPARE(value("chartColors").value<QList<QColor>>().size(), 5);
    }

    void theHeroMetricIsLargeAndSemibold()
    {
        const QFont hero = value("heroMetricFont").value<QFont>();
        QCOMPARE(hero.pixelSize(), 46);
        QCOMPARE(hero.weight(), QFont::DemiBold);
    }

    void textAndItsContainersGrowTogether()
    {
        m_desktop->setPreferences({.fontPoints = 14});
        QCOMPARE(value("bodyFont").value<QFont>().pixelSize(), 18);
        QCOMPARE(value("heroMetricFont").value<QFont>().pixelSize(), 64);
        QCOMPARE(value("controlHeight").toInt(), 45);
        QCOMPARE(value("cardSpace").toInt(), 16);
        appearance().setTextScale(1);
        QCOMPARE(value("bodyFont").value<QFont>().pixelSize(), 13);
    }

    void durationsAreZeroUnderReducedMotion()
    {
        appearance().setMotion(Appearance::Full);
        QCOMPARE(value("hoverDuration").toInt(), 180);
        QCOMPARE(value("pageDuration").toInt(), 320);
        appearance().setMotion(Appearance::Reduced);
        QCOMPARE(value("hoverDuration").toInt(), 0);
        QCOMPARE(value("pageDuration").toInt(), 0);
    }

    void withMoreContrastLinesAndQuietWordsStandOut_data() { schemes(); }

    void withMoreContrastLinesAndQuietWordsStandOut()
    {
        QFETCH(int, scheme);
        use(scheme);
        const QColor quietLine = color("separator");
        m_desktop->setPreferences({.moreContrast = true});
        QVERIFY(color("separator") != quietLine);
        QCOMPARE(value("quietBorderOpacity").toDouble(), 1.0);
        for (const char *ground : grounds) {
            QVERIFY(contrast(color("separator"), color(ground)) >= leastForShapes);
            QVERIFY(contrast(color("secondaryText"), color(ground)) >= 7.0);
        }
    }

    void theDesktopsAccentIsReadable_data() { schemes(); }

    void theDesktopsAccentIsReadable()
    {
        QFETCH(int, scheme);
        use(scheme);
        const QColor ours = color("accent");
        for (const QColor &chosen : {QColor(255, 230, 0), QColor(0, 0, 90), QColor(230, 60, 150)}) {
            m_desktop->setPreferences({.accent = chosen});
            const QColor accent = color("accent");
            QVERIFY(accent != ours);
            for (const char *ground : grounds)
                QVERIFY2(contrast(accent, color(ground)) >= leastForText,
                         qPrintable(chosen.name()));
            QVERIFY(contrast(color("accentText"), accent) >= leastForText);
            const QColor row = blended(color("selectionFill"), color("sidebar"));
            QVERIFY(contrast(accent, row) >= leastForText);
        }
    }

    void fallsBackToOurAccent()
    {
        use(Appearance::Light);
        QCOMPARE(color("accent"), color("ownAccent"));
        m_desktop->setPreferences({.accent = QColor(Qt::red)});
        m_desktop->setPreferences({});
        QCOMPARE(color("accent"), color("ownAccent"));
    }

private:
    static void schemes()
    {
        QTest::addColumn<int>("scheme");
        QTest::newRow("light") << int(Appearance::Light);
        QTest::newRow("dark") << int(Appearance::Dark);
    }

    void use(int scheme) { appearance().setScheme(static_cast<Appearance::Scheme>(scheme)); }

    [[nodiscard]] Appearance &appearance()
    {
        return *m_singletons->property("appearance").value<Appearance *>();
    }

    [[nodiscard]] QVariant value(const char *role)
    {
        return m_singletons->property("theme").value<QObject *>()->property(role);
    }

    [[nodiscard]] QColor color(const char *role) { return value(role).value<QColor>(); }

    [[nodiscard]] QList<QColor> shapes()
    {
        QList<QColor> shapes = {color("bandLean"), color("bandHeavy"), color("bandExcessive"),
                                color("accent")};
        return shapes + value("chartColors").value<QList<QColor>>();
    }

    FakeAppearanceSource *m_desktop = nullptr; ///< the engine's
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QObject> m_singletons;
};

const RegisteredTest<AppThemeTest> registered("AppTheme");

} // namespace Loadwick

#include "AppThemeTest.moc"
