#include "base/QmlObject.h"

#include <QFile>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include "support/TestRegistry.h"

namespace Loadwick {

class QmlObjectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void createsTheObjectWithItsProperties()
    {
        const auto object =
            made("QtObject { required property int size }", {{QStringLiteral("size"), 7}});
        QVERIFY2(object != nullptr, qPrintable(m_failure));
        QCOMPARE(object->property("size").toInt(), 7);
    }

    void reportsErrorsInsteadOfCreatingAnything_data()
    {
        QTest::addColumn<QByteArray>("qml");
        QTest::addColumn<QString>("part");
        QTest::newRow("no QML") << QByteArray("QtObject {") << QStringLiteral("Expected token");
        QTest::newRow("no such type") << QByteArray("Nonesuch {}") << QStringLiteral("Nonesuch");
        QTest::newRow("broken type") << QByteArray("Broken {}") << QStringLiteral("Broken.qml:");
        QTest::newRow("property not given")
            << QByteArray("QtObject { required property int size }") << QStringLiteral("size");
    }

    void reportsErrorsInsteadOfCreatingAnything()
    {
        QFETCH(const QByteArray, qml);
        QFETCH(const QString, part);
        QVERIFY(made(qml) == nullptr);
        QVERIFY2(m_failure.contains(part), qPrintable(m_failure));
    }

    void reportsAMissingFile()
    {
        QQmlEngine engine;
        const QUrl url(QStringLiteral("qrc:/qt/qml/Loadwick/Nonesuch.qml"));
        QVERIFY(qmlObject(engine, url, {}, m_failure) == nullptr);
        QVERIFY2(m_failure.contains(QStringLiteral("Nonesuch.qml")), qPrintable(m_failure));
    }

private:
    [[nodiscard]] std::unique_ptr<QObject> made(const QByteArray &qml,
                                                const QVariantMap &properties = {})
    {
        const QTemporaryDir folder;
        write(folder.filePath(QStringLiteral("Broken.qml")), "import QtQml\nQtObject { size: 1 }");
        const QString path = folder.filePath(QStringLiteral("Made.qml"));
        write(path, "import QtQml\n" + qml);
        return qmlObject(m_engine, QUrl::fromLocalFile(path), properties, m_failure);
    }

    static void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QQmlEngine m_engine;
    QString m_failure;
};

const RegisteredTest<QmlObjectTest> registered("QmlObject");

} // namespace Loadwick

#include "QmlObjectTest.moc"
