#include "theme/PaletteAppearanceSource.h"

#include "support/TestRegistry.h"

#include <QGuiApplication>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>

namespace Loadwick {

class PaletteAppearanceSourceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDarkWindowIsDark_data();
    void aDarkWindowIsDark();
    void saysWhenThePaletteChanges();
    void leavesMotionAlone();
};

void PaletteAppearanceSourceTest::aDarkWindowIsDark_data()
{
    QTest::addColumn<QColor>("window");
    QTest::addColumn<bool>("dark");
    QTest::newRow("white") << QColor(255, 255, 255) << false;
    QTest::newRow("just light") << QColor(128, 128, 128) << false;
    QTest::newRow("just dark") << QColor(127, 127, 127) << true;
    QTest::newRow("black") << QColor(0, 0, 0) << true;
}

void PaletteAppearanceSourceTest::aDarkWindowIsDark()
{
    QFETCH(QColor, window);
    QFETCH(bool, dark);
    const PaletteAppearanceSource source;
    QGuiApplication::setPalette(QPalette(Qt::gray, window));
    QCOMPARE(source.prefersDark(), dark);
}

void PaletteAppearanceSourceTest::saysWhenThePaletteChanges()
{
    QGuiApplication::setPalette(QPalette(Qt::gray, Qt::white));
    const PaletteAppearanceSource source;
    QSignalSpy changes(&source, &AppearanceSource::changed);
    QGuiApplication::setPalette(QPalette(Qt::gray, Qt::black));
    QTRY_VERIFY(!changes.isEmpty());
}

void PaletteAppearanceSourceTest::leavesMotionAlone()
{
    QVERIFY(!PaletteAppearanceSource().prefersReducedMotion());
}

const RegisteredTest<PaletteAppearanceSourceTest> registered("PaletteAppearanceSource");

} // namespace Loadwick

#include "PaletteAppearanceSourceTest.moc"
