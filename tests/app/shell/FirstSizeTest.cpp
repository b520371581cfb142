#include "shell/FirstSize.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

class FirstSizeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsWhatFits_data()
    {
        QTest::addColumn<QSize>("room");
        QTest::addColumn<QSize>("size");
        QTest::newRow("a large screen") << QSize(2560, 1400) << QSize(1180, 780);
        QTest::newRow("exactly") << QSize(1180, 780) << QSize(1180, 780);
        QTest::newRow("a low screen") << QSize(1366, 700) << QSize(1180, 700);
        QTest::newRow("a narrow screen") << QSize(1080, 1880) << QSize(1080, 780);
        QTest::newRow("less than the least") << QSize(800, 560) << QSize(960, 640);
    }

    void itIsWhatFits()
    {
        QFETCH(const QSize, room);
        QFETCH(const QSize, size);
        QCOMPARE(FirstSize::within(QSize(1180, 780), QSize(960, 640), room), size);
    }

    void aWindowLeavesRoomForItsTitleBar()
    {
        const QSize room = QGuiApplication::primaryScreen()->availableSize();
        QWindow window;
        window.setMinimumSize(QSize(100, 100));
        window.resize(2 * room);
        FirstSize::putOn(window);
        QCOMPARE(window.width(), room.width());
        QVERIFY(window.height() < room.height());
    }
};

const RegisteredTest<FirstSizeTest> registered("FirstSize");

} // namespace Loadwick

#include "FirstSizeTest.moc"
