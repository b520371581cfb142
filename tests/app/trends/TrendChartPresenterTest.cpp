#include "trends/TrendChartPresenter.h"

#include <optional>

#include <QSignalSpy>
#include <QTest>

#include "support/RecordedScanBuilder.h"
#include "support/TestRegistry.h"
#include "support/TimeZone.h"

namespace Loadwick {

class TrendChartPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_zone.emplace("UTC"); }

    void explainsTrendsWhileNothingIsRecorded()
    {
        TrendChartPresenter chart{TextLocale()};
        chart.showNoHistory();
        QCOMPARE(chart.emptyTitle(), QString());
        QCOMPARE(chart.emptyText(),
                 QStringLiteral("Scans are recorded locally as you run them. Run one scan, then "
                                "another, and the trend appears here."));
    }

    void saysThatNothingIsRecordedForThisRepository()
    {
        TrendChartPresenter chart{TextLocale()};
        chart.show({});
        QCOMPARE(chart.emptyTitle(), QString());
        QCOMPARE(chart.emptyText(),
                 QStringLiteral("Nothing recorded for this repository yet. Scan it twice and its "
                                "trend appears here."));
    }

    void saysWhatTheOneRecordedScanMeasured_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("measured");
        QTest::newRow("en_US") << QStringLiteral("en_US")
                               << QStringLiteral("27,654 tokens on Mar 4, 2026");
        QTest::newRow("de_DE") << QStringLiteral("de_DE")
                               << QStringLiteral("27.654 tokens on 4. März 2026");
        QTest::newRow("C") << QStringLiteral("C") << QStringLiteral("27,654 tokens on Mar 4, 2026");
        QTest::newRow("hi_IN") << QStringLiteral("hi_IN")
                               << QStringLiteral("27,654 tokens on 4 मार्च 2026");
    }

    void saysWhatTheOneRecordedScanMeasured()
    {
        QFETCH(const QString, locale);
        QFETCH(const QString, measured);
        TrendChartPresenter chart(TextLocale::fromEnvironment({{"LANG", locale.toStdString()}}));
        chart.show(std::vector{RecordedScanBuilder().build()});
        QCOMPARE(chart.emptyTitle(), QStringLiteral("One scan recorded"));
        QCOMPARE(chart.emptyText(),
                 QStringLiteral("The one on record measured ") + measured +
                     QStringLiteral(". A trend needs at least two scans of webshop. Scan again to "
                                    "plot a line."));
    }

    void callsARepositoryWithoutANameThisRepository()
    {
        TrendChartPresenter chart{TextLocale()};
        chart.show(std::vector{RecordedScanBuilder().named("").build()});
        QVERIFY(chart.emptyText().contains(
            QStringLiteral(" needs at least two scans of this repository. Scan again")));
    }

    void drawsTwoScans()
    {
        TrendChartPresenter chart{TextLocale()};
        chart.show(twoScans());
        QCOMPARE(chart.emptyTitle(), QString());
        QCOMPARE(chart.emptyText(), QString());
        QCOMPARE(chart.line()->geometry().points().size(), std::size_t(2));
    }

    void describesTheChartInWords()
    {
        TrendChartPresenter chart{TextLocale()};
        chart.show(twoScans());
        QCOMPARE(chart.summary(),
                 QStringLiteral("Startup tokens per scan of web%1shop: 2 scans from Mar 4, 2026 to "
                                "Mar 6, 2026, between 28,500 and 31,000 tokens. The Heavy band "
                                "begins at 30,000, the Excessive band above 60,000."));
    }

    void saysOnWhichDaysItWasScanned_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("zone");
        QTest::addColumn<int>("hoursBetween");
        QTest::addColumn<QString>("period");
        QTest::newRow("one day") << QStringLiteral("en_US") << QStringLiteral("UTC") << 3
                                 << QStringLiteral("2 scans on Mar 4, 2026.");
        QTest::newRow("over midnight")
            << QStringLiteral("en_US") << QStringLiteral("UTC") << 15
            << QStringLiteral("2 scans from Mar 4, 2026 to Mar 5, 2026.");
        QTest::newRow("over a year") << QStringLiteral("en_US") << QStringLiteral("UTC") << 24 * 365
                                     << QStringLiteral("2 scans from Mar 4, 2026 to Mar 4, 2027.");
        QTest::newRow("over midnight in Auckland")
            << QStringLiteral("en_US") << QStringLiteral("Pacific/Auckland") << 3
            << QStringLiteral("2 scans from Mar 4, 2026 to Mar 5, 2026.");
        QTest::newRow("de_DE") << QStringLiteral("de_DE") << QStringLiteral("UTC") << 3
                               << QStringLiteral("2 scans on 4. März 2026.");
    }

    void saysOnWhichDaysItWasScanned()
    {
        QFETCH(const QString, locale);
        QFETCH(const QString, zone);
        QFETCH(const int, hoursBetween);
        QFETCH(const QString, period);
        m_zone.emplace(qPrintable(zone));
        TrendChartPresenter chart(TextLocale::fromEnvironment({{"LANG", locale.toStdString()}}));
        chart.show(std::vector{RecordedScanBuilder().at(morning).build(),
                               RecordedScanBuilder().at(morning + 3'600 * hoursBetween).build()});
        QCOMPARE(chart.period(), period);
    }

    void withoutALineThereIsNoPeriod()
    {
        TrendChartPresenter chart{TextLocale()};
        chart.show(twoScans());
        chart.show(std::vector{RecordedScanBuilder().build()});
        QCOMPARE(chart.period(), QString());
    }

    void forgetsTheLineWithTheHistory()
    {
        TrendChartPresenter chart{TextLocale()};
        chart.show(twoScans());
        QSignalSpy changed(&chart, &TrendChartPresenter::changed);
        chart.showNoHistory();
        QCOMPARE(changed.count(), 1);
        QVERIFY(chart.line()->geometry().points().empty());
        QCOMPARE(chart.summary(), QString());
    }

private:
    static constexpr std::int64_t morning = 1'772'615'727; // 9:15 on Mar 4, 2026

    static std::vector<RecordedScan> twoScans()
    {
        RecordedScanBuilder builder;
        builder.named("web%1shop");
        return {builder.at(morning).ofTotal(31'000).build(),
                builder.at(morning + 2 * 86'400).ofTotal(28'500).build()};
    }

    std::optional<TimeZone> m_zone;
};

const RegisteredTest<TrendChartPresenterTest> registered("TrendChartPresenter");

} // namespace Loadwick

#include "TrendChartPresenterTest.moc"
