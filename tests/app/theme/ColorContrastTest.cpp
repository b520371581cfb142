#include "theme/ColorContrast.h"

#include "support/TestRegistry.h"

#include <QTest>

#include <cstdlib>

namespace Loadwick {
namespace {

const QList<QColor> lightGrounds = {QColor(0xF4, 0xF4, 0xF6), QColor(0xEB, 0xEB, 0xEF), Qt::white};
const QList<QColor> darkGrounds = {QColor(0x1B, 0x1B, 0x1E), QColor(0x29, 0x29, 0x2E)};
constexpr float tint = 0.18F;

} // namespace

class ColorContrastTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void blackOnWhiteIsTwentyOne() { QCOMPARE(contrast(Qt::black, Qt::white), 21.0); }
    void aColorOnItselfIsOne() { QCOMPARE(contrast(Qt::red, Qt::red), 1.0); }
    void theOrderDoesNotMatter()
    {
        QCOMPARE(contrast(Qt::red, Qt::white), contrast(Qt::white, Qt::red));
    }
    // The grey that is known to be just above the limit for text on white.
    void middleGreyOnWhiteIsJustReadable()
    {
        QVERIFY(contrast(QColor(0x76, 0x76, 0x76), Qt::white) >= 4.5);
        QVERIFY(contrast(QColor(0x77, 0x77, 0x77), Qt::white) < 4.5);
    }
    void halfTransparentBlackOnWhiteIsGrey()
    {
        QCOMPARE(blended(QColor::fromRgbF(0, 0, 0, 0.5F), Qt::white).lightness(), 127);
    }
    void anOpaqueColorHidesItsGround() { QCOMPARE(blended(Qt::blue, Qt::red), QColor(Qt::blue)); }

    void aReadableAccentStaysAsItIs()
    {
        const QColor blue(0x1A, 0x3F, 0x99);
        QCOMPARE(readableAccent(blue, lightGrounds, tint), blue);
    }

    void anAccentOfAnyHueBecomesReadable_data()
    {
        QTest::addColumn<QColor>("accent");
        for (int hue = 0; hue < 360; hue += 30)
            QTest::addRow("hue %d", hue) << QColor::fromHsl(hue, 255, 128);
        QTest::newRow("grey") << QColor(128, 128, 128);
        QTest::newRow("white") << QColor(Qt::white);
        QTest::newRow("black") << QColor(Qt::black);
        QTest::newRow("translucent") << QColor(255, 0, 0, 10);
    }

    void anAccentOfAnyHueBecomesReadable()
    {
        QFETCH(QColor, accent);
        for (const QList<QColor> &grounds : {lightGrounds, darkGrounds}) {
            const QColor found = readableAccent(accent, grounds, tint);
            QColor capsule = found;
            capsule.setAlphaF(tint);
            QCOMPARE(found.alpha(), 255);
            for (const QColor &ground : grounds) {
                QVERIFY(contrast(found, ground) >= 4.5);
                QVERIFY(contrast(found, blended(capsule, ground)) >= 4.5);
            }
        }
    }

    void anAccentKeepsItsHue()
    {
        const QColor yellow = QColor::fromHsl(50, 255, 128);
        const QColor found = readableAccent(yellow, lightGrounds, tint);
        QVERIFY(std::abs(found.hslHue() - 50) <= 2);
        QVERIFY(found.lightness() < yellow.lightness());
    }

    void anAccentGetsLighterOnDarkGrounds()
    {
        const QColor navy(0, 0, 128);
        QVERIFY(readableAccent(navy, darkGrounds, tint).lightness() > navy.lightness());
    }

    void adjustsAnAccentNoMoreThanNeeded()
    {
        const QColor found = readableAccent(QColor(255, 200, 0), lightGrounds, tint);
        QVERIFY(contrast(found, lightGrounds[1]) < 7.0);
    }
};

const RegisteredTest<ColorContrastTest> registered("ColorContrast");

} // namespace Loadwick

#include "ColorContrastTest.moc"
