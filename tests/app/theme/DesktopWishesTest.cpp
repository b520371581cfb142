#include "theme/DesktopWishes.h"

#include "support/TestRegistry.h"

#include <QTest>

namespace Loadwick {

class DesktopWishesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatOneSaysWins()
    {
        const DesktopWishes one{.dark = false, .reducedMotion = true, .accent = QColor(Qt::red)};
        const DesktopWishes other{.dark = true, .reducedMotion = false, .accent = QColor(Qt::blue)};
        QVERIFY(one.orElse(other) == one);
    }

    void whatOneDoesNotSayTheOtherMay()
    {
        const DesktopWishes one{.dark = true};
        const DesktopWishes other{.dark = false, .moreContrast = true};
        const DesktopWishes both{.dark = true, .moreContrast = true};
        QVERIFY(one.orElse(other) == both);
    }

    void nothingSaidStaysUnsaid() { QVERIFY(DesktopWishes().orElse({}) == DesktopWishes()); }

    void aWishForTheOppositeIsNotSilence()
    {
        QVERIFY(DesktopWishes{.dark = false} != DesktopWishes());
    }
};

const RegisteredTest<DesktopWishesTest> registered("DesktopWishes");

} // namespace Loadwick

#include "DesktopWishesTest.moc"
