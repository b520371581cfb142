#include "theme/ColorContrast.h"

#include "support/TestRegistry.h"

#include <QTest>

namespace Loadwick {

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
    // The grey that is known to lie just above the limit for text on white.
    void middleGreyOnWhiteIsJustReadable()
    {
        QVERIFY(contrast(QColor(0x76, 0x76, 0x76), Qt::white) >= 4.5);
        QVERIFY(contrast(QColor(0x77, 0x77, 0x77), Qt::white) < 4.5);
    }
    void halfABlackOnWhiteIsGrey()
    {
        QCOMPARE(blended(QColor::fromRgbF(0, 0, 0, 0.5F), Qt::white).lightness(), 127);
    }
    void anOpaqueColorHidesItsGround() { QCOMPARE(blended(Qt::blue, Qt::red), QColor(Qt::blue)); }
};

const RegisteredTest<ColorContrastTest> registered("ColorContrast");

} // namespace Loadwick

#include "ColorContrastTest.moc"
