#include "base/TextRows.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

class TextRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesEachTextUnderItsName()
    {
        TextRows rows({"label", "value"});
        rows.setRows({{QStringLiteral("Duration"), QStringLiteral("12.0 seconds")}});
        const int value = rows.roleNames().key("value");
        QCOMPARE(rows.rowCount(), 1);
        QCOMPARE(rows.data(rows.index(0), value).toString(), QStringLiteral("12.0 seconds"));
    }

    void aRowWithTooFewTextsLacksTheOthers()
    {
        TextRows rows({"label", "value"});
        rows.setRows({{QStringLiteral("Duration")}});
        QVERIFY(!rows.data(rows.index(0), rows.roleNames().key("value")).isValid());
    }

    void behavesAsAModelWhileItsRowsChange()
    {
        TextRows rows({"label"});
        const QAbstractItemModelTester tester(&rows);
        QSignalSpy reset(&rows, &QAbstractItemModel::modelReset);
        rows.setRows({{QStringLiteral("a")}, {QStringLiteral("b")}});
        rows.setRows({});
        QCOMPARE(reset.count(), 2);
        QCOMPARE(rows.rowCount(), 0);
    }
};

const RegisteredTest<TextRowsTest> registered("TextRows");

} // namespace Loadwick

#include "TextRowsTest.moc"
