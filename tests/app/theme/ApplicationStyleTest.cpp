#include "theme/ApplicationStyle.h"

#include "support/TestRegistry.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QTest>

namespace Loadwick {

class ApplicationStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void usesTheBasicControls() { QCOMPARE(QQuickStyle::name(), QStringLiteral("Basic")); }

    void figuresOfTheFontAreEquallyWide()
    {
        QFont hero = QGuiApplication::font();
        hero.setPixelSize(46);
        hero.setWeight(QFont::DemiBold);
        const QFontMetricsF metrics(hero);
        const qreal width = metrics.horizontalAdvance(QStringLiteral("00000"));
        for (char figure = '1'; figure <= '9'; ++figure) {
            const QString repeated(5, QLatin1Char(figure));
            QCOMPARE(metrics.horizontalAdvance(repeated), width);
        }
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
