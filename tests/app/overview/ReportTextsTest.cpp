#include "overview/ReportTexts.h"

#include <QTest>

#include "samples/SampleReport.h"
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
    void groupsFiguresAsTheLocaleDoes()
    {
        const ReportTexts texts = ReportTexts::fromReport(reportOf(42'318), german);
        QVERIFY(texts.summary.contains(QStringLiteral("Total: 42.318 tokens")));
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
