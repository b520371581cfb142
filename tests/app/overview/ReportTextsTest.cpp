#include "overview/ReportTexts.h"

#include <QTest>

#include "support/SampleReport.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

ScanReport reportOf(std::int64_t total)
{
    ScanReport report = sampleReport();
    report.total = total;
    report.band = OpinionBand::band(total);
    return report;
}

const TextLocale english{};
const TextLocale german{.numbers = "de_DE", .dates = "de_DE"};

} // namespace

class ReportTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhereTheTotalFalls_data()
    {
        QTest::addColumn<qint64>("total");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("lean") << qint64(27'654) << QStringLiteral("Lean startup context")
                              << QStringLiteral("The total measured by Claude is 27,654 tokens, "
                                                "which falls in the Lean band (under 30,000).");
        QTest::newRow("heavy") << qint64(42'318) << QStringLiteral("Heavy startup context")
                               << QStringLiteral("The total measured by Claude is 42,318 tokens, "
                                                 "which falls in the Heavy band (30,000–60,000).");
        QTest::newRow("excessive")
            << qint64(1'234'567) << QStringLiteral("Excessive startup context")
            << QStringLiteral("The total measured by Claude is 1,234,567 tokens, which falls in "
                              "the Excessive band (over 60,000).");
        QTest::newRow("zero") << qint64(0) << QStringLiteral("Lean startup context")
                              << QStringLiteral("The total measured by Claude is 0 tokens, which "
                                                "falls in the Lean band (under 30,000).");
    }

    void saysWhereTheTotalFalls()
    {
        QFETCH(const qint64, total);
        const ReportTexts texts = ReportTexts::fromReport(reportOf(total), english);
        QTEST(texts.bandTitle, "title");
        QTEST(texts.bandSentence, "sentence");
    }

    void groupsFiguresAsTheLocaleDoes()
    {
        const ReportTexts texts = ReportTexts::fromReport(reportOf(42'318), german);
        QCOMPARE(texts.total, QStringLiteral("42.318"));
        QCOMPARE(texts.bandSentence,
                 QStringLiteral("The total measured by Claude is 42.318 tokens, which falls in the "
                                "Heavy band (30.000–60.000)."));
        QVERIFY(texts.summary.contains(QStringLiteral("Total: 42.318 tokens")));
    }

    void showsTotalsBeyondThirtyTwoBits()
    {
        QCOMPARE(ReportTexts::fromReport(reportOf(9'007'199'254'740'993), english).total,
                 QStringLiteral("9,007,199,254,740,993"));
    }

    void listsTheSessionDetails()
    {
        ScanReport report = sampleReport();
        report.duration = 1234.56;
        const QList<QStringList> expected = {
            {QStringLiteral("Repository path"), QStringLiteral("/home/someone/webshop")},
            {QStringLiteral("Claude executable"), QStringLiteral("/usr/local/bin/claude")},
            {QStringLiteral("Session ID"), QStringLiteral("0b8e6c1e-5f0a-4a57-9f0c-0c9d5f1e7a11")},
            {QStringLiteral("Duration"), QStringLiteral("1234.6 seconds")},
        };
        QCOMPARE(ReportTexts::fromReport(report, german).details, expected);
    }

    void notesWhatTheFiguresMean()
    {
        const QStringList expected = {
            QStringLiteral("Measured: one headless `claude -p` session (model sonnet) started in "
                           "this folder; the number includes the probe prompt."),
            QStringLiteral("The category and file splits below are estimates derived locally; only "
                           "the total above is authoritative."),
            QStringLiteral("Total: authoritative — reported by Claude (source: session transcript: "
                           "first assistant message usage)."),
        };
        QCOMPARE(ReportTexts::fromReport(sampleReport(), english).notes, expected);
    }

    void joinsTheSummaryByLineFeeds()
    {
        const QString summary = ReportTexts::fromReport(sampleReport(), english).summary;
        QCOMPARE(summary.count(QLatin1Char('\n')), 5);
        QVERIFY(summary.startsWith(QStringLiteral("Repository: webshop\nTotal: 27,654 tokens")));
        QVERIFY(summary.endsWith(QStringLiteral("Claude executable: /usr/local/bin/claude")));
    }
};

const RegisteredTest<ReportTextsTest> registered("ReportTexts");

} // namespace Loadwick

#include "ReportTextsTest.moc"
