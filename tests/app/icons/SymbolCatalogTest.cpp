#include "icons/SymbolCatalog.h"

#include "support/TestRegistry.h"

#include <QDir>
#include <QFile>
#include <QSvgRenderer>
#include <QTest>

namespace Loadwick {

class SymbolCatalogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsEveryNameThatTheWindowUses()
    {
        const QStringList pages = {QStringLiteral("square.grid.2x2"),
                                   QStringLiteral("chart.line.uptrend.xyaxis"),
                                   QStringLiteral("rectangle.split.2x1")};
        const QStringList states = {QStringLiteral("circle"),
                                    QStringLiteral("arrow.triangle.2.circlepath"),
                                    QStringLiteral("exclamationmark.triangle"),
                                    QStringLiteral("exclamationmark.triangle.fill"),
                                    QStringLiteral("checkmark.circle.fill"),
                                    QStringLiteral("magnifyingglass")};
        const QStringList commands = {QStringLiteral("folder"), QStringLiteral("folder.fill"),
                                      QStringLiteral("waveform.path.ecg"),
                                      QStringLiteral("doc.on.doc"), QStringLiteral("trash")};
        const QStringList marks = {
            QStringLiteral("arrow.up.right"), QStringLiteral("arrow.down.right"),
            QStringLiteral("equal"),          QStringLiteral("scalemass"),
            QStringLiteral("chevron.right"),  QStringLiteral("chevron.down"),
            QStringLiteral("gauge"),          QStringLiteral("arrow.up")};
        QStringList names = pages + states + commands + marks;
        names.sort();
        QCOMPARE(SymbolCatalog::systemNames(), names);
    }

    void everyNameHasADrawing_data()
    {
        QTest::addColumn<QString>("name");
        const QStringList names = SymbolCatalog::systemNames();
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << name;
    }

    void everyNameHasADrawing()
    {
        QFETCH(QString, name);
        QVERIFY(QSvgRenderer(SymbolCatalog::file(name)).isValid());
    }

    void everyDrawingHasAName()
    {
        QStringList drawings =
            QDir(QStringLiteral(":/qt/qml/Loadwick/icons")).entryList({QStringLiteral("*.svg")});
        drawings.replaceInStrings(QStringLiteral(".svg"), QString());
        drawings.sort();
        QCOMPARE(drawings, SymbolCatalog::roles());
    }

    void drawingsShareOneGridAndOneStroke_data() { everyNameHasADrawing_data(); }

    void drawingsShareOneGridAndOneStroke()
    {
        QFETCH(QString, name);
        QFile file(SymbolCatalog::file(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray drawing = file.readAll();
        QVERIFY(drawing.contains("viewBox=\"2 2 20 20\""));
        QCOMPARE(drawing.count("stroke-width"), 1);
        QVERIFY(drawing.contains(
            "stroke-width=\"1.75\" stroke-linecap=\"round\" stroke-linejoin=\"round\""));
    }

    void aRoleNameFindsTheSameDrawing()
    {
        QCOMPARE(SymbolCatalog::file(QStringLiteral("repository")),
                 SymbolCatalog::file(QStringLiteral("folder.fill")));
    }

    void anUnknownNameHasNone()
    {
        QCOMPARE(SymbolCatalog::file(QStringLiteral("unicorn")), QString());
        QCOMPARE(SymbolCatalog::file(QString()), QString());
    }

    void aNameCannotLeaveTheFolder()
    {
        QCOMPARE(SymbolCatalog::file(QStringLiteral("../icons/repository")), QString());
    }
};

const RegisteredTest<SymbolCatalogTest> registered("SymbolCatalog");

} // namespace Loadwick

#include "SymbolCatalogTest.moc"
