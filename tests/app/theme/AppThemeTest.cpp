#include "support/FakeAppearanceSource.h"
#include "support/TestRegistry.h"
#include "theme/Appearance.h"
#include "theme/ApplicationStyle.h"
#include "theme/ColorContrast.h"

#include <QFont>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

namespace Loadwick {
namespace {

const QStringList grounds = {QStringLiteral("window"), QStringLiteral("sidebar"),
                             QStringLiteral("surface")};
const QStringList textColors = {
    QStringLiteral("text"),          QStringLiteral("secondaryText"),
    QStringLiteral("accent"),        QStringLiteral("bandLeanText"),
    QStringLiteral("bandHeavyText"), QStringLiteral("bandExcessiveText")};
constexpr double leastForText = 4.5;
constexpr double leastForShapes = 3.0;

} // namespace

class AppThemeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void textCanBeReadOnEveryGround_data();
    void textCanBeReadOnEveryGround();
    void aPillsWordCanBeReadOnItsCapsule_data() { textCanBeReadOnEveryGround_data(); }
    void aPillsWordCanBeReadOnItsCapsule();
    void theMarkOfAStateStandsOutFromItsCircle_data() { schemes(); }
    void theMarkOfAStateStandsOutFromItsCircle();
    void aProvenanceMarkCanBeRead_data() { schemes(); }
    void aProvenanceMarkCanBeRead();
    void theProminentButtonCanBeRead_data() { schemes(); }
    void theProminentButtonCanBeRead();
    void theSelectedPageCanBeRead_data() { schemes(); }
    void theSelectedPageCanBeRead();
    void theNameOnATileCanBeRead_data() { schemes(); }
    void theNameOnATileCanBeRead();
    void shapesStandOutFromTheCard_data() { schemes(); }
    void shapesStandOutFromTheCard();
    void shapesOfABandAndItsTextDiffer();
    void thereAreFiveChartColors();
    void theHeroMetricIsLargeAndSemibold();
    void wordsAndWhatHoldsThemGrowTogether();
    void nothingMovesWhenMotionIsUnwanted();
    void withMoreContrastLinesAndQuietWordsStandOut_data() { schemes(); }
    void withMoreContrastLinesAndQuietWordsStandOut();
    void theDesktopsAccentCanBeRead_data() { schemes(); }
    void theDesktopsAccentCanBeRead();
    void withoutADesktopsAccentItIsOurs();

private:
    static void schemes();
    void use(int scheme) { appearance().setScheme(static_cast<Appearance::Scheme>(scheme)); }
    [[nodiscard]] Appearance &appearance();
    [[nodiscard]] QVariant value(const QString &role);
    [[nodiscard]] QColor color(const QString &role) { return value(role).value<QColor>(); }
    [[nodiscard]] QList<QColor> shapes();

    FakeAppearanceSource *m_desktop = nullptr; ///< the engine's
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QObject> m_singletons;
};

void AppThemeTest::init()
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

void AppThemeTest::cleanup()
{
    m_singletons.reset();
    m_engine.reset();
}

Appearance &AppThemeTest::appearance()
{
    return *m_singletons->property("appearance").value<Appearance *>();
}

QVariant AppThemeTest::value(const QString &role)
{
    return m_singletons->property("theme").value<QObject *>()->property(qPrintable(role));
}

QList<QColor> AppThemeTest::shapes()
{
    QList<QColor> shapes = {color(QStringLiteral("bandLean")), color(QStringLiteral("bandHeavy")),
                            color(QStringLiteral("bandExcessive")),
                            color(QStringLiteral("accent"))};
    return shapes + value(QStringLiteral("chartColors")).value<QList<QColor>>();
}

void AppThemeTest::schemes()
{
    QTest::addColumn<int>("scheme");
    QTest::newRow("light") << int(Appearance::Light);
    QTest::newRow("dark") << int(Appearance::Dark);
}

void AppThemeTest::textCanBeReadOnEveryGround_data()
{
    QTest::addColumn<int>("scheme");
    QTest::addColumn<QString>("role");
    QTest::addColumn<QString>("ground");
    for (const auto scheme : {Appearance::Light, Appearance::Dark}) {
        for (const QString &role : textColors) {
            for (const QString &ground : grounds) {
                QTest::addRow("%s %s on %s", scheme == Appearance::Dark ? "dark" : "light",
                              qPrintable(role), qPrintable(ground))
                    << int(scheme) << role << ground;
            }
        }
    }
}

void AppThemeTest::textCanBeReadOnEveryGround()
{
    QFETCH(int, scheme);
    QFETCH(QString, role);
    QFETCH(QString, ground);
    use(scheme);
    QVERIFY(color(role).isValid());
    QVERIFY(contrast(color(role), color(ground)) >= leastForText);
}

void AppThemeTest::aPillsWordCanBeReadOnItsCapsule()
{
    QFETCH(int, scheme);
    QFETCH(QString, role);
    QFETCH(QString, ground);
    use(scheme);
    QColor capsule = color(role);
    capsule.setAlphaF(value(QStringLiteral("tintOpacity")).toFloat());
    QVERIFY(contrast(color(role), blended(capsule, color(ground))) >= leastForText);
}

void AppThemeTest::theMarkOfAStateStandsOutFromItsCircle()
{
    QFETCH(int, scheme);
    use(scheme);
    for (const QString &role : {QStringLiteral("secondaryText"), QStringLiteral("accent"),
                                QStringLiteral("bandExcessive")}) {
        QColor circle = color(role);
        circle.setAlphaF(value(QStringLiteral("tintOpacity")).toFloat());
        const QColor ground = blended(circle, color(QStringLiteral("window")));
        QVERIFY2(contrast(color(role), ground) >= leastForShapes, qPrintable(role));
    }
}

void AppThemeTest::aProvenanceMarkCanBeRead()
{
    QFETCH(int, scheme);
    use(scheme);
    for (const QString &ground : grounds) {
        const QColor capsule = blended(color(QStringLiteral("quietFill")), color(ground));
        QVERIFY(contrast(color(QStringLiteral("secondaryText")), capsule) >= leastForText);
    }
}

void AppThemeTest::theProminentButtonCanBeRead()
{
    QFETCH(int, scheme);
    use(scheme);
    QVERIFY(contrast(color(QStringLiteral("accentText")), color(QStringLiteral("accent"))) >=
            leastForText);
}

void AppThemeTest::theSelectedPageCanBeRead()
{
    QFETCH(int, scheme);
    use(scheme);
    const QColor row =
        blended(color(QStringLiteral("selectionFill")), color(QStringLiteral("sidebar")));
    QVERIFY(contrast(color(QStringLiteral("accent")), row) >= leastForText);
}

void AppThemeTest::theNameOnATileCanBeRead()
{
    QFETCH(int, scheme);
    use(scheme);
    const auto tiles = value(QStringLiteral("chartColors")).value<QList<QColor>>();
    for (const char *opacity : {"tileOpacity", "currentTileOpacity"}) {
        for (QColor tile : tiles) {
            tile.setAlphaF(value(QString::fromLatin1(opacity)).toFloat());
            const QColor ground = blended(tile, color(QStringLiteral("surface")));
            QVERIFY2(contrast(color(QStringLiteral("text")), ground) >= leastForText,
                     qPrintable(tile.name()));
        }
    }
}

void AppThemeTest::shapesStandOutFromTheCard()
{
    QFETCH(int, scheme);
    use(scheme);
    const QList<QColor> all = shapes();
    for (const QColor &shape : all)
        QVERIFY2(contrast(shape, color(QStringLiteral("surface"))) >= leastForShapes,
                 qPrintable(shape.name()));
}

void AppThemeTest::shapesOfABandAndItsTextDiffer()
{
    use(Appearance::Light);
    QVERIFY(color(QStringLiteral("bandHeavy")) != color(QStringLiteral("bandHeavyText")));
}

void AppThemeTest::thereAreFiveChartColors()
{
    QCOMPARE(value(QStringLiteral("chartColors")).value<QList<QColor>>().size(), 5);
}

void AppThemeTest::theHeroMetricIsLargeAndSemibold()
{
    const QFont hero = value(QStringLiteral("heroMetricFont")).value<QFont>();
    QCOMPARE(hero.pixelSize(), 46);
    QCOMPARE(hero.weight(), QFont::DemiBold);
}

void AppThemeTest::wordsAndWhatHoldsThemGrowTogether()
{
    m_desktop->wish({.fontPoints = 14});
    QCOMPARE(value(QStringLiteral("bodyFont")).value<QFont>().pixelSize(), 18);
    QCOMPARE(value(QStringLiteral("heroMetricFont")).value<QFont>().pixelSize(), 64);
    QCOMPARE(value(QStringLiteral("controlHeight")).toInt(), 45);
    QCOMPARE(value(QStringLiteral("cardSpace")).toInt(), 16);
    appearance().setTextScale(1);
    QCOMPARE(value(QStringLiteral("bodyFont")).value<QFont>().pixelSize(), 13);
}

void AppThemeTest::nothingMovesWhenMotionIsUnwanted()
{
    appearance().setMotion(Appearance::Full);
    QCOMPARE(value(QStringLiteral("hoverDuration")).toInt(), 180);
    QCOMPARE(value(QStringLiteral("pageDuration")).toInt(), 320);
    appearance().setMotion(Appearance::Reduced);
    QCOMPARE(value(QStringLiteral("hoverDuration")).toInt(), 0);
    QCOMPARE(value(QStringLiteral("pageDuration")).toInt(), 0);
}

void AppThemeTest::withMoreContrastLinesAndQuietWordsStandOut()
{
    QFETCH(int, scheme);
    use(scheme);
    const QColor quietLine = color(QStringLiteral("separator"));
    m_desktop->wish({.moreContrast = true});
    QVERIFY(color(QStringLiteral("separator")) != quietLine);
    QCOMPARE(value(QStringLiteral("quietBorderOpacity")).toDouble(), 1.0);
    for (const QString &ground : grounds) {
        QVERIFY(contrast(color(QStringLiteral("separator")), color(ground)) >= leastForShapes);
        QVERIFY(contrast(color(QStringLiteral("secondaryText")), color(ground)) >= 7.0);
    }
}

void AppThemeTest::theDesktopsAccentCanBeRead()
{
    QFETCH(int, scheme);
    use(scheme);
    const QColor ours = color(QStringLiteral("accent"));
    for (const QColor &chosen : {QColor(255, 230, 0), QColor(0, 0, 90), QColor(230, 60, 150)}) {
        m_desktop->wish({.accent = chosen});
        const QColor accent = color(QStringLiteral("accent"));
        QVERIFY(accent != ours);
        for (const QString &ground : grounds)
            QVERIFY2(contrast(accent, color(ground)) >= leastForText, qPrintable(chosen.name()));
        QVERIFY(contrast(color(QStringLiteral("accentText")), accent) >= leastForText);
        const QColor row =
            blended(color(QStringLiteral("selectionFill")), color(QStringLiteral("sidebar")));
        QVERIFY(contrast(accent, row) >= leastForText);
    }
}

void AppThemeTest::withoutADesktopsAccentItIsOurs()
{
    use(Appearance::Light);
    QCOMPARE(color(QStringLiteral("accent")), color(QStringLiteral("ownAccent")));
    m_desktop->wish({.accent = QColor(Qt::red)});
    m_desktop->wish({});
    QCOMPARE(color(QStringLiteral("accent")), color(QStringLiteral("ownAccent")));
}

const RegisteredTest<AppThemeTest> registered("AppTheme");

} // namespace Loadwick

#include "AppThemeTest.moc"
