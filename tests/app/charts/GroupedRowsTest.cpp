#include "charts/GroupedRows.h"

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

class GroupedRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noCategoryHasNoLine()
    {
        QCOMPARE(GroupedRows().lineCount(), std::size_t(0));
        QCOMPARE(GroupedRows(0, 5).lineCount(), std::size_t(0));
    }

    void eachCategoryHasALineForItsNameAndOneForEachColumn()
    {
        QCOMPARE(GroupedRows(3, 2).lineCount(), std::size_t(9));
    }

    void aNameStandsAboveItsBarsInTheOrderOfTheColumns()
    {
        const GroupedRows lines(3, 2);
        QCOMPARE(lines.line(0), (GroupedRows::Line{0, std::nullopt}));
        QCOMPARE(lines.line(1), (GroupedRows::Line{0, 0}));
        QCOMPARE(lines.line(2), (GroupedRows::Line{0, 1}));
        QCOMPARE(lines.line(3), (GroupedRows::Line{1, std::nullopt}));
        QCOMPARE(lines.line(8), (GroupedRows::Line{2, 1}));
    }

    void everyBarHasExactlyOneLine()
    {
        const GroupedRows lines(7, 4);
        std::size_t bars = 0;
        for (std::size_t index = 0; index < lines.lineCount(); ++index) {
            const GroupedRows::Line line = lines.line(index);
            QVERIFY(line.row < 7);
            if (!line.column)
                continue;
            QVERIFY(*line.column < 4);
            QCOMPARE(index, line.row * 5 + *line.column + 1);
            ++bars;
        }
        QCOMPARE(bars, std::size_t(28));
    }
};

const RegisteredTest<GroupedRowsTest> registered("GroupedRows");

} // namespace Loadwick

#include "GroupedRowsTest.moc"
