#include "theme/KdeGlobals.h"

#include "support/TestRegistry.h"

#include <QTest>

namespace Loadwick {

class KdeGlobalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAWholeFile()
    {
        const DesktopWishes read = KdeGlobals::wishes("[General]\n"
                                                      "AccentColor=61,174,233\n"
                                                      "ColorScheme=BreezeDark\n"
                                                      "Name[de]=Breeze Dunkel\n"
                                                      "\n"
                                                      "[KDE]\n"
                                                      "AnimationDurationFactor=0\n");
        const DesktopWishes expected{
            .dark = true, .reducedMotion = true, .accent = QColor(61, 174, 233)};
        QVERIFY(read == expected);
    }

    void theGroundOfWindowsTellsMoreThanAName()
    {
        const DesktopWishes read = KdeGlobals::wishes("[Colors:Window]\n"
                                                      "BackgroundNormal=239,240,241\n"
                                                      "[General]\n"
                                                      "ColorScheme=NotAsDarkAsItSounds\n");
        QCOMPARE(read.dark, std::optional(false));
    }

    void aLightNameIsLight()
    {
        QCOMPARE(KdeGlobals::wishes("[General]\nColorScheme=BreezeLight\n").dark,
                 std::optional(false));
    }

    void animationsThatTakeTimeAreMotion_data()
    {
        QTest::addColumn<QByteArray>("factor");
        QTest::addColumn<int>("reduced");
        QTest::newRow("none") << QByteArray("0") << 1;
        QTest::newRow("none, written long") << QByteArray("0.0") << 1;
        QTest::newRow("quick") << QByteArray("0.25") << 0;
        QTest::newRow("as they are") << QByteArray("1") << 0;
        QTest::newRow("no number") << QByteArray("fast") << -1;
        QTest::newRow("empty") << QByteArray() << -1;
    }

    void animationsThatTakeTimeAreMotion()
    {
        QFETCH(QByteArray, factor);
        const auto read =
            KdeGlobals::wishes("[KDE]\nAnimationDurationFactor=" + factor.toStdString());
        QTEST(read.reducedMotion ? int(*read.reducedMotion) : -1, "reduced");
    }

    void theGeneralFontTellsItsSize_data()
    {
        QTest::addColumn<QByteArray>("font");
        QTest::addColumn<double>("points");
        QTest::newRow("as it is written") << QByteArray("Noto Sans,14,-1,5,50,0,0,0,0,0") << 14.0;
        QTest::newRow("parts of a point") << QByteArray("Noto Sans, 10.5,-1") << 10.5;
        QTest::newRow("in pixels") << QByteArray("Noto Sans,-1,18,5") << -1.0;
        QTest::newRow("a name alone") << QByteArray("Noto Sans") << -1.0;
        QTest::newRow("no number") << QByteArray("Noto Sans,large") << -1.0;
    }

    void theGeneralFontTellsItsSize()
    {
        QFETCH(const QByteArray, font);
        const auto read = KdeGlobals::wishes("[General]\nfont=" + font.toStdString() + "\n");
        QTEST(read.fontPoints.value_or(-1), "points");
    }

    void aHighContrastSchemeAsksForContrast()
    {
        const auto read = KdeGlobals::wishes("[General]\nColorScheme=BreezeHighContrast\n");
        QCOMPARE(read.moreContrast, std::optional(true));
        QVERIFY(!KdeGlobals::wishes("[General]\nColorScheme=BreezeDark\n").moreContrast);
    }

    void marksBehindANameDoNotMatter()
    {
        const auto read = KdeGlobals::wishes("[KDE][$i]\n[KDE]\nAnimationDurationFactor[$i]=0\n");
        QCOMPARE(read.reducedMotion, std::optional(true));
    }

    void anotherGroupsKeySaysNothing()
    {
        QVERIFY(KdeGlobals::wishes("[Plasma]\nAnimationDurationFactor=0\nColorScheme=Dark\n") ==
                DesktopWishes());
    }

    void whatIsNoSettingSaysNothing_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("a comment") << QByteArray("[KDE]\n#AnimationDurationFactor=0\n");
        QTest::newRow("no group") << QByteArray("AnimationDurationFactor=0\n");
        QTest::newRow("half a colour") << QByteArray("[General]\nAccentColor=1,2\n");
        QTest::newRow("beyond a colour") << QByteArray("[General]\nAccentColor=1,2,256\n");
        QTest::newRow("no colour") << QByteArray("[General]\nAccentColor=red,green,blue\n");
        QTest::newRow("bytes") << QByteArray("\0=[\xff]\n=\n[", 9);
    }

    void whatIsNoSettingSaysNothing()
    {
        QFETCH(QByteArray, text);
        QVERIFY(KdeGlobals::wishes(text.toStdString()) == DesktopWishes());
    }
};

const RegisteredTest<KdeGlobalsTest> registered("KdeGlobals");

} // namespace Loadwick

#include "KdeGlobalsTest.moc"
