#include "overview/BreakdownPresenter.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

#include "report/SlabAttributor.h"
#include "samples/SampleReport.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

ScanReport reportOf(std::int64_t total, const std::vector<std::int64_t> &tokens)
{
    ScanReport report = sampleReport();
    report.total = total;
    report.rows.clear();
    for (const std::int64_t count : tokens) {
        report.rows.push_back({.name = "Row " + std::to_string(report.rows.size()),
                               .tokens = count,
                               .provenance = Provenance::selfReported,
                               .ordinal = static_cast<std::int64_t>(report.rows.size())});
    }
    return report;
}

ScanReport notSelfReported()
{
    ScanReport report = reportOf(42'000, {42'000});
    report.rows[0].name = SlabAttributor::unreportedCategoriesLabel;
    report.rows[0].provenance = Provenance::claudeReported;
    report.categoriesSelfReported = false;
    return report;
}

ScanReport overAttributed()
{
    ScanReport report = reportOf(1'234'567, {2'000'000});
    report.overAttributed = true;
    return report;
}

QStringList platformNotes(const ScanReport &report)
{
    const auto note = report.unreadableFilesPlatformNote();
    return note ? QStringList(QString::fromStdString(*note)) : QStringList();
}

} // namespace

class BreakdownPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_breakdown = std::make_unique<BreakdownPresenter>(TextLocale()); }
    void chartsTheTokensOfTheRowsInTheirOrder()
    {
        m_breakdown->show(sampleReport());
        QCOMPARE(m_breakdown->slices(), QList<qreal>({14'210, 12'632, 812}));
        QVERIFY(m_breakdown->hasSlices());
        QCOMPARE(m_breakdown->rows()->rowCount(), 3);
    }

    void rowsWithoutTokensAreListedButNotCharted()
    {
        m_breakdown->show(reportOf(0, {0, 0, 0}));
        QVERIFY(!m_breakdown->hasSlices());
        QCOMPARE(m_breakdown->chartSummary(), QString());
        QCOMPARE(m_breakdown->rows()->rowCount(), 3);
    }

    void repeatsTheTotalInTheLocale_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("total");
        QTest::newRow("en_US") << QStringLiteral("en_US") << QStringLiteral("1,234,567");
        QTest::newRow("de_DE") << QStringLiteral("de_DE") << QStringLiteral("1.234.567");
        QTest::newRow("C") << QStringLiteral("C") << QStringLiteral("1,234,567");
        QTest::newRow("hi_IN") << QStringLiteral("hi_IN") << QStringLiteral("12,34,567");
    }

    void repeatsTheTotalInTheLocale()
    {
        QFETCH(const QString, language);
        BreakdownPresenter breakdown(
            TextLocale::fromEnvironment({{"LC_ALL", language.toStdString()}}));
        breakdown.show(reportOf(1'234'567, {5}));
        QTEST(breakdown.total(), "total");
    }

    void readsOutTheRowPointedAt_data() { repeatsTheTotalInTheLocale_data(); }
    void readsOutTheRowPointedAt()
    {
        QFETCH(const QString, language);
        QFETCH(const QString, total);
        BreakdownPresenter breakdown(
            TextLocale::fromEnvironment({{"LC_ALL", language.toStdString()}}));
        breakdown.show(reportOf(2'000'000, {1'234'567, 5}));
        QCOMPARE(breakdown.readOutTitle(0), QStringLiteral("Row 0"));
        QCOMPARE(breakdown.readOutDetail(0), total + QStringLiteral(" tokens · 61.7%"));
        QCOMPARE(breakdown.readOutSentence(0),
                 QStringLiteral("Row 0, ") + total +
                     QStringLiteral(" tokens, 61.7%, self-reported by the session (estimate)"));
        QCOMPARE(breakdown.readOutDetail(1), QStringLiteral("5 tokens · 0.0%"));
    }

    void aShareReadOutNeverExceedsAHundredPercent()
    {
        m_breakdown->show(reportOf(100, {500}));
        QCOMPARE(m_breakdown->readOutDetail(0), QStringLiteral("500 tokens · 100.0%"));
        m_breakdown->show(reportOf(0, {500}));
        QCOMPARE(m_breakdown->readOutDetail(0), QStringLiteral("500 tokens · 0.0%"));
    }

    void hasNoReadOutWithoutARow()
    {
        m_breakdown->show(sampleReport());
        QCOMPARE(m_breakdown->readOutSentence(-1), QString());
        QCOMPARE(m_breakdown->readOutTitle(-1), QString());
        QCOMPARE(m_breakdown->readOutDetail(-1), QString());
        QCOMPARE(m_breakdown->readOutTitle(3), QString());
    }

    void saysThatASessionReportedNoCategories()
    {
        m_breakdown->show(notSelfReported());
        QVERIFY(!m_breakdown->selfReported());
        QCOMPARE(m_breakdown->readOutTitle(0),
                 QStringLiteral("Startup context (categories not self-reported)"));
        QCOMPARE(m_breakdown->readOutDetail(0), QStringLiteral("42,000 tokens · 100.0%"));
        m_breakdown->show(sampleReport());
        QVERIFY(m_breakdown->selfReported());
    }

    void hasNoNotesOnAPlainReport()
    {
        m_breakdown->show(sampleReport());
        QCOMPARE(m_breakdown->notes(), QStringList());
    }

    void notesOverAttribution_data() { repeatsTheTotalInTheLocale_data(); }

    void notesOverAttribution()
    {
        QFETCH(const QString, language);
        QFETCH(const QString, total);
        BreakdownPresenter breakdown(
            TextLocale::fromEnvironment({{"LC_ALL", language.toStdString()}}));
        breakdown.show(overAttributed());
        QCOMPARE(breakdown.notes(),
                 QStringList(
                     QStringLiteral("The session's self-reported categories alone add up to "
                                    "more than its measured total. The bar's segments "
                                    "therefore exceed the measured total of ") +
                     total + QStringLiteral(" tokens, and there is no hidden remainder to show.")));
    }

    void notesUnreadableFiles_data() { repeatsTheTotalInTheLocale_data(); }
    void notesUnreadableFiles()
    {
        QFETCH(const QString, language);
        ScanReport report = sampleReport();
        report.fileSet.unreadablePaths.assign(1'500, "/home/someone/webshop/CLAUDE.md");
        BreakdownPresenter breakdown(
            TextLocale::fromEnvironment({{"LC_ALL", language.toStdString()}}));
        breakdown.show(report);
        QCOMPARE(
            breakdown.notes()[0],
            QStringLiteral(
                "1500 instruction files could not be read, so the category and file estimates are "
                "lower than what is really loaded. The measured total is unaffected — it is "
                "reported by Claude. macOS may be blocking access: allow Loadwick under System "
                "Settings → Privacy & Security → Files & Folders, then scan again."));
        QCOMPARE(breakdown.notes().mid(1), platformNotes(report));
    }

    void notesOverAttributionBeforeUnreadableFiles()
    {
        ScanReport report = overAttributed();
        report.fileSet.unreadablePaths = {"/home/someone/webshop/CLAUDE.md"};
        m_breakdown->show(report);
        QVERIFY(m_breakdown->notes()[0].startsWith(QStringLiteral("The session's self-reported")));
        QVERIFY(m_breakdown->notes()[1].startsWith(QStringLiteral("1 instruction file could not")));
        QCOMPARE(m_breakdown->notes().mid(2), platformNotes(report));
        m_breakdown->show(sampleReport());
        QCOMPARE(m_breakdown->notes(), QStringList());
    }

    void summarizesTheChartInOneSentence()
    {
        m_breakdown->show(sampleReport());
        QCOMPARE(
            m_breakdown->chartSummary(),
            QStringLiteral("Donut chart of the breakdown by category, 27,654 tokens in all. The "
                           "largest of 3: System prompt, 14,210 tokens, 51.4%"));
    }

    void copiesARow()
    {
        m_breakdown->show(sampleReport());
        m_breakdown->rows()->copy(1, QStringLiteral("sentence"));
        QCOMPARE(
            QGuiApplication::clipboard()->text(),
            QStringLiteral("Unattributed, 12,632 tokens, 45.7%, derived: total minus attributed"));
    }

    void signalsAReportOnce()
    {
        const QSignalSpy changes(m_breakdown.get(), &BreakdownPresenter::changed);
        m_breakdown->show(sampleReport());
        QCOMPARE(changes.count(), 1);
    }

private:
    std::unique_ptr<BreakdownPresenter> m_breakdown;
};

const RegisteredTest<BreakdownPresenterTest> registered("BreakdownPresenter");

} // namespace Loadwick

#include "BreakdownPresenterTest.moc"
