#include "overview/LatestChangePresenter.h"

#include <QSignalSpy>
#include <QTest>

#include "samples/SampleReport.h"
#include "support/RecordedScanBuilder.h"
#include "support/ScanningModel.h"
#include "support/TestRegistry.h"
#include "support/TimeZone.h"

namespace Loadwick {
namespace {

constexpr std::int64_t firstScan = 1'772'615'727; // 2026-03-04 09:15:27

/// A recorded scan of the sample report's repository.
RecordedScan scanOf(std::int64_t total, int hoursLater)
{
    return RecordedScanBuilder()
        .in(sampleReport().repositoryPath)
        .at(firstScan + hoursLater * 3'600)
        .ofTotal(total)
        .build();
}

} // namespace

class LatestChangePresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { use("en_US"); }

    void knowsNothingWithoutAnEarlierScan()
    {
        QVERIFY(!m_change->isKnown());
        record({scanOf(20'000, 0), latest()});
        QVERIFY(!m_change->isKnown()); // no report yet
        m_change->show(sampleReport());
        QVERIFY(m_change->isKnown());
        RecordedScan other = scanOf(20'000, 0);
        other.repositoryPath = "/other";
        record({other, latest()});
        QVERIFY(!m_change->isKnown());
        QCOMPARE(m_change->sentence(), QString());
        record({});
        QVERIFY(!m_change->isKnown());
    }

    void comparesWithTheScanBefore()
    {
        m_change->show(sampleReport());
        record({scanOf(1, 0), scanOf(26'420, 1), latest()});
        QCOMPARE(m_change->kind(), TrendKind::Grew);
        QCOMPARE(m_change->title(), QStringLiteral("+1,234"));
        QCOMPARE(m_change->symbol(), QStringLiteral("arrow.up.right"));
        QCOMPARE(m_change->since(), QStringLiteral("since Mar 4, 2026, 10:15\u202FAM"));
        record({latest(), scanOf(27'734, 1), scanOf(1, 0)});
        QCOMPARE(m_change->title(), QStringLiteral("-80"));
        record({scanOf(latest().total, 1), latest()});
        QCOMPARE(m_change->kind(), TrendKind::Unchanged);
        QCOMPARE(m_change->title(), QStringLiteral("+0")); // as in the comparison it leads to
    }

    void aReportThatIsNotRecordedYetHasNoChange()
    {
        record({scanOf(1, 0), scanOf(2, 1)});
        QSignalSpy changed(m_change.get(), &LatestChangePresenter::changed);
        m_change->show(sampleReport());
        QVERIFY(!m_change->isKnown());
        record({scanOf(1, 0), scanOf(2, 1), latest()});
        QVERIFY(m_change->isKnown());
        QCOMPARE(changed.count(), 2);
    }

    void wordsEveryLocale_data()
    {
        QTest::addColumn<QString>("sentence");
        QTest::newRow("en_US") << "+7,654 tokens since Mar 4, 2026, 9:15\u202FAM";
        QTest::newRow("de_DE") << "+7.654 tokens since 4. März 2026, 09:15";
        QTest::newRow("hi_IN") << "+7,654 tokens since 4 मार्च 2026, 9:15 am";
        QTest::newRow("ar_EG") << "\u061C+٧٬٦٥٤ tokens since ٤ مارس ٢٠٢٦، ٩:١٥ ص";
    }

    void wordsEveryLocale()
    {
        QFETCH(const QString, sentence);
        use(QTest::currentDataTag());
        m_change->show(sampleReport());
        record({scanOf(20'000, 0), latest()});
        QCOMPARE(m_change->sentence(), sentence);
    }

    void asksForWhatChanged()
    {
        QSignalSpy opened(m_change.get(), &LatestChangePresenter::opened);
        m_change->open();
        QCOMPARE(opened.count(), 1);
    }

private:
    static RecordedScan latest() { return scanOf(sampleReport().total, 9); }

    void use(const std::string &locale)
    {
        m_change.reset();
        m_scanning = std::make_unique<ScanningModel>();
        m_change = std::make_unique<LatestChangePresenter>(
            m_scanning->model, TextLocale{.numbers = locale, .dates = locale});
    }

    void record(std::vector<RecordedScan> scans)
    {
        m_scanning->model.history().set(std::move(scans));
    }

    const TimeZone m_utc{"UTC"};
    std::unique_ptr<ScanningModel> m_scanning;
    std::unique_ptr<LatestChangePresenter> m_change;
};

const RegisteredTest<LatestChangePresenterTest> registered("LatestChangePresenter");

} // namespace Loadwick

#include "LatestChangePresenterTest.moc"
