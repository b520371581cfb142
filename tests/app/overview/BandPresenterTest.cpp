#include "overview/BandPresenter.h"

#include <limits>

#include <QSignalSpy>
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

} // namespace

class BandPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_presenter = std::make_unique<BandPresenter>(TextLocale()); }

    void isEmptyBeforeTheFirstReport()
    {
        QCOMPARE(m_presenter->total(), QString());
        QCOMPARE(m_presenter->position(), 0.0);
        QVERIFY(m_presenter->thresholds().isEmpty());
    }

    void namesTheBandOfTheTotal_data()
    {
        QTest::addColumn<qint64>("total");
        QTest::addColumn<int>("band");
        QTest::newRow("nothing") << qint64(0) << 0;
        QTest::newRow("lean") << qint64(29'999) << 0;
        QTest::newRow("heavy") << qint64(30'000) << 1;
        QTest::newRow("still heavy") << qint64(60'000) << 1;
        QTest::newRow("excessive") << qint64(60'001) << 2;
    }

    void namesTheBandOfTheTotal()
    {
        QFETCH(const qint64, total);
        m_presenter->show(reportOf(total));
        QTEST(m_presenter->band(), "band");
    }

    void showsTheReport()
    {
        m_presenter->show(reportOf(42'318));
        QCOMPARE(m_presenter->title(), QStringLiteral("Heavy startup context"));
        QCOMPARE(m_presenter->total(), QStringLiteral("42,318"));
        QCOMPARE(m_presenter->bands().size(), 3);
        QCOMPARE(m_presenter->score(), 52);
        QCOMPARE(m_presenter->scoreText(), QStringLiteral("52"));
        QCOMPARE(m_presenter->scoreSummary(), QStringLiteral("Illustrative score 52 of 100"));
        QVERIFY(m_presenter->sentence().contains(m_presenter->total()));
        QVERIFY(m_presenter->meterSummary().contains(m_presenter->total()));
        QVERIFY(m_presenter->scoreDetail().startsWith(QStringLiteral("52 of 100")));
        QVERIFY(m_presenter->scoreCaption().contains(QStringLiteral("Heavy")));
        QVERIFY(m_presenter->anchorNote().startsWith(QStringLiteral("Anchor: ")));
    }

    void placesATotalOfNothingAtTheFarLeft()
    {
        m_presenter->show(reportOf(0));
        QCOMPARE(m_presenter->position(), 0.0);
        QCOMPARE(m_presenter->score(), 100);
        QCOMPARE(m_presenter->thresholds(), (QList<qreal>{1.0 / 3, 2.0 / 3}));
    }

    void movesTheThresholdsAsTheScaleGrows()
    {
        m_presenter->show(reportOf(90'000));
        QCOMPARE(m_presenter->position(), 0.75);
        QCOMPARE(m_presenter->thresholds(), (QList<qreal>{0.25, 0.5}));
    }

    void keepsTheLargestTotalOnTheScale()
    {
        m_presenter->show(reportOf(std::numeric_limits<std::int64_t>::max()));
        QVERIFY(m_presenter->position() <= 1);
        QCOMPARE(m_presenter->score(), 0);
    }

    void tellsOfEveryReport()
    {
        QSignalSpy changed(m_presenter.get(), &BandPresenter::changed);
        m_presenter->show(reportOf(42'318));
        m_presenter->show(reportOf(42'318));
        QCOMPARE(changed.size(), 2);
    }

private:
    std::unique_ptr<BandPresenter> m_presenter;
};

const RegisteredTest<BandPresenterTest> registered("BandPresenter");

} // namespace Loadwick

#include "BandPresenterTest.moc"
