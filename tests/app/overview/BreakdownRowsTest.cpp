#include "overview/BreakdownRows.h"

#include <limits>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include "samples/SampleReport.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

SlabAttribution rowOf(std::int64_t tokens, Provenance provenance = Provenance::selfReported)
{
    return {.name = "Messages", .tokens = tokens, .provenance = provenance, .ordinal = 0};
}

ScanReport reportOf(std::int64_t total, const std::vector<SlabAttribution> &rows)
{
    ScanReport report = sampleReport();
    report.total = total;
    report.rows = rows;
    return report;
}

QString text(const BreakdownRows &rows, int row, const char *role)
{
    return rows.text(row, QString::fromLatin1(role));
}

} // namespace

class BreakdownRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheReportsOrder()
    {
        BreakdownRows rows{TextLocale()};
        rows.show(sampleReport());
        QCOMPARE(rows.rowCount(), 3);
        QCOMPARE(text(rows, 0, "name"), QStringLiteral("System prompt"));
        QCOMPARE(text(rows, 1, "name"), QStringLiteral("Unattributed"));
        QCOMPARE(text(rows, 2, "name"), QStringLiteral("Tools"));
    }

    void isAWellBehavedModel()
    {
        BreakdownRows rows{TextLocale()};
        const QAbstractItemModelTester tester(
            &rows, QAbstractItemModelTester::FailureReportingMode::QtTest);
        rows.show(sampleReport());
        rows.show(reportOf(0, {}));
        QCOMPARE(rows.rowCount(), 0);
    }

    void namesItsRolesForQml()
    {
        const auto names = BreakdownRows(TextLocale()).roleNames();
        for (const char *name : {"name", "tokens", "share", "source", "provenance", "sentence"})
            QVERIFY2(names.values().contains(name), name);
        QCOMPARE(names.size(), 6);
    }

    void namesTheSourceOfEachRow_data()
    {
        QTest::addColumn<int>("provenance");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("identifier");
        QTest::newRow("reported") << int(Provenance::claudeReported)
                                  << QStringLiteral("reported by Claude")
                                  << QStringLiteral("claudeReported");
        QTest::newRow("self-reported") << int(Provenance::selfReported)
                                       << QStringLiteral("self-reported by the session (estimate)")
                                       << QStringLiteral("selfReported");
        QTest::newRow("local") << int(Provenance::localEstimate)
                               << QStringLiteral("measured on disk at ~4 bytes/token (estimate)")
                               << QStringLiteral("localEstimate");
        QTest::newRow("remainder")
            << int(Provenance::remainder) << QStringLiteral("derived: total minus attributed")
            << QStringLiteral("remainder");
    }

    void namesTheSourceOfEachRow()
    {
        QFETCH(const int, provenance);
        BreakdownRows rows{TextLocale()};
        rows.show(reportOf(10, {rowOf(5, static_cast<Provenance::Value>(provenance))}));
        QTEST(text(rows, 0, "source"), "source");
        QTEST(text(rows, 0, "provenance"), "identifier");
    }

    void groupsTokensAsTheLocaleDoes_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("tokens");
        QTest::newRow("en_US") << QStringLiteral("en_US") << QStringLiteral("1,234,567");
        QTest::newRow("de_DE") << QStringLiteral("de_DE") << QStringLiteral("1.234.567");
        QTest::newRow("C") << QStringLiteral("C") << QStringLiteral("1,234,567");
        QTest::newRow("hi_IN") << QStringLiteral("hi_IN") << QStringLiteral("12,34,567");
    }

    void groupsTokensAsTheLocaleDoes()
    {
        QFETCH(const QString, language);
        BreakdownRows rows(TextLocale::fromEnvironment({{"LC_ALL", language.toStdString()}}));
        rows.show(reportOf(2'000'000, {rowOf(1'234'567)}));
        QTEST(text(rows, 0, "tokens"), "tokens");
    }

    void writesSharesWithAPointInEveryLocale_data() { groupsTokensAsTheLocaleDoes_data(); }
    void writesSharesWithAPointInEveryLocale()
    {
        QFETCH(const QString, language);
        BreakdownRows rows(TextLocale::fromEnvironment({{"LC_ALL", language.toStdString()}}));
        rows.show(reportOf(2'000'000, {rowOf(1'234'567)}));
        QCOMPARE(text(rows, 0, "share"), QStringLiteral("61.7%"));
    }

    void sharesStayBetweenZeroAndAHundred_data()
    {
        QTest::addColumn<qint64>("tokens");
        QTest::addColumn<qint64>("total");
        QTest::addColumn<QString>("share");
        QTest::newRow("a part") << qint64(14'210) << qint64(27'654) << QStringLiteral("51.4%");
        QTest::newRow("all") << qint64(7) << qint64(7) << QStringLiteral("100.0%");
        QTest::newRow("more than all") << qint64(70'000) << qint64(7) << QStringLiteral("100.0%");
        QTest::newRow("none") << qint64(0) << qint64(7) << QStringLiteral("0.0%");
        QTest::newRow("less than none") << qint64(-3) << qint64(7) << QStringLiteral("0.0%");
        QTest::newRow("of no total") << qint64(5) << qint64(0) << QStringLiteral("0.0%");
        QTest::newRow("of less than no total") << qint64(5) << qint64(-1) << QStringLiteral("0.0%");
        QTest::newRow("of one") << qint64(1) << qint64(1) << QStringLiteral("100.0%");
    }

    void sharesStayBetweenZeroAndAHundred()
    {
        QFETCH(const qint64, tokens);
        QFETCH(const qint64, total);
        BreakdownRows rows{TextLocale()};
        rows.show(reportOf(total, {rowOf(tokens)}));
        QTEST(text(rows, 0, "share"), "share");
    }

    void describesARowInOneSentence()
    {
        BreakdownRows rows{TextLocale()};
        rows.show(sampleReport());
        QCOMPARE(text(rows, 0, "sentence"),
                 QStringLiteral("System prompt, 14,210 tokens, 51.4%, self-reported by the session "
                                "(estimate)"));
    }

    void aSingleTokenIsNotInThePlural()
    {
        BreakdownRows rows{TextLocale()};
        rows.show(reportOf(10, {rowOf(1)}));
        QVERIFY(text(rows, 0, "sentence").startsWith(QStringLiteral("Messages, 1 token, 10.0%, ")));
    }

    void keepsNamesVerbatim()
    {
        ScanReport report = reportOf(10, {rowOf(5)});
        report.rows[0].name = "<b>Nachrichten</b> & \xc3\xa4hnliches \xf0\x9f\x93\x8e";
        BreakdownRows rows{TextLocale()};
        rows.show(report);
        QCOMPARE(text(rows, 0, "name"), QStringLiteral("<b>Nachrichten</b> & ähnliches 📎"));
    }

    void showsAnotherReport()
    {
        BreakdownRows rows{TextLocale()};
        rows.show(sampleReport());
        const QSignalSpy resets(&rows, &BreakdownRows::modelReset);
        rows.show(reportOf(9'007'199'254'740'993, {rowOf(9'007'199'254'740'993)}));
        QCOMPARE(resets.count(), 1);
        QCOMPARE(rows.rowCount(), 1);
        QCOMPARE(text(rows, 0, "tokens"), QStringLiteral("9,007,199,254,740,993"));
    }

    void isEmptyOutOfRange()
    {
        BreakdownRows rows{TextLocale()};
        rows.show(sampleReport());
        QCOMPARE(text(rows, 3, "name"), QString());
        QVERIFY(!rows.data(rows.index(0), Qt::DisplayRole).isValid());
        QCOMPARE(rows.rowCount(rows.index(0)), 0);
    }
};

const RegisteredTest<BreakdownRowsTest> registered("BreakdownRows");

} // namespace Loadwick

#include "BreakdownRowsTest.moc"
