#include "theme/ApplicationStyle.h"

#include "support/TestRegistry.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QTest>

namespace Loadwick {

class ApplicationStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void figuresOfTheFontAreEquallyWide_data()
    {
        QTest::addColumn<int>("pixelSize");
        QTest::addColumn<int>("weight");
        for (const int size : {12, 13, 15, 17, 20, 28, 46}) {
            QTest::addRow("%d regular", size) << size << int(QFont::Normal);
            QTest::addRow("%d semibold", size) << size << int(QFont::DemiBold);
        }
    }

    void figuresOfTheFontAreEquallyWide()
    {
        QFETCH(const int, pixelSize);
        QFETCH(const int, weight);
        QFont font = QGuiApplication::font();
        font.setPixelSize(pixelSize);
        font.setWeight(QFont::Weight(weight));
        const QFontMetricsF metrics(font);
        const qreal width = metrics.horizontalAdvance(QStringLiteral("00000"));
        for (char figure = '1'; figure <= '9'; ++figure) {
            const QString repeated(5, QLatin1Char(figure));
            QCOMPARE(metrics.horizontalAdvance(repeated), width);
        }
    }

    void figuresAreNotKerned()
    {
        const QFontMetricsF metrics(QGuiApplication::font());
        const qreal width = metrics.horizontalAdvance(QStringLiteral("00"));
        for (char first = '0'; first <= '9'; ++first) {
            for (char second = '0'; second <= '9'; ++second) {
                const QString pair = QString(QLatin1Char(first)) + QLatin1Char(second);
                QCOMPARE(metrics.horizontalAdvance(pair), width);
            }
        }
    }

    void theFontHasATrueSemibold()
    {
        QFont semibold = QGuiApplication::font();
        semibold.setWeight(QFont::DemiBold);
        QCOMPARE(QFontInfo(semibold).weight(), int(QFont::DemiBold));
        QVERIFY(QFontMetricsF(semibold).horizontalAdvance(QStringLiteral("tokens")) >
                QFontMetricsF(QGuiApplication::font()).horizontalAdvance(QStringLiteral("tokens")));
    }

    void theFontIsInstalled() { QVERIFY(QFontInfo(QGuiApplication::font()).exactMatch()); }

    void theEngineFindsTheModuleInTheProgram()
    {
        QQmlEngine engine;
        ApplicationStyle::addModulePath(engine);
        QVERIFY(engine.importPathList().contains(QStringLiteral("qrc:/qt/qml")));
    }
};

const RegisteredTest<ApplicationStyleTest> registered("ApplicationStyle");

} // namespace Loadwick

#include "ApplicationStyleTest.moc"
