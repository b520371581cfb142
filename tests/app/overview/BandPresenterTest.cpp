#include "overview/BandPresenter.h"

#include <limits>

#include <QSignalSpy>
#include <QTest>

#include "report/ScanReport.h"
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

/// A desktop in that language; "C" means none.
std::unique_ptr<BandPresenter> shown(std::int64_t total, const char *language)
{
    auto band =
        std::make_unique<BandPresenter>(TextLocale::fromEnvironment({{"LC_ALL", language}}));
    band->show(reportOf(total));
    return band;
}

} // namespace

class BandPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_presenter = std::make_unique<BandPresenter>(TextLocale()); }

    void showsATotalOfZeroBeforeTheFirstReport()
    {
        QCOMPARE(m_presenter->total(), QStringLiteral("0"));
        QCOMPARE(m_presenter->position(), 0.0);
    }

    void saysWhyATotalOfZeroIsZero()
    {
        QCOMPARE(m_presenter->zeroNote(), QString());
        m_presenter->show(reportOf(0));
        QCOMPARE(
            m_presenter->zeroNote(),
            QStringLiteral("This session received no tokens; a hook may have blocked its prompt."));
        m_presenter->show(reportOf(1));
        QCOMPARE(m_presenter->zeroNote(), QString());
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

    void aTotalOfZeroIsAtTheFarLeft()
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

    void signalsEveryReport()
    {
        QSignalSpy changed(m_presenter.get(), &BandPresenter::changed);
        m_presenter->show(reportOf(42'318));
        m_presenter->show(reportOf(42'318));
        QCOMPARE(changed.size(), 2);
    }

    void saysWhereTheTotalFalls_data()
    {
        QTest::addColumn<qint64>("total");
        QTest::addColumn<QByteArray>("language");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("figure");
        QTest::addColumn<QString>("sentence");
        const auto row = [](const char *name, qint64 total, const char *language, const char *title,
                            const char *figure, const char *sentence) {
            QTest::newRow(name) << total << QByteArray(language) << QString::fromUtf8(title)
                                << QString::fromUtf8(figure) << QString::fromUtf8(sentence);
        };
        row("lean, en_US", 27'654, "en_US", "Lean startup context", "27,654",
            "The total measured by Claude is 27,654 tokens, which falls in the Lean band "
            "(under 30,000).");
        row("heavy, en_US", 42'318, "en_US", "Heavy startup context", "42,318",
            "The total measured by Claude is 42,318 tokens, which falls in the Heavy band "
            "(30,000–60,000).");
        row("excessive, en_US", 142'318, "en_US", "Excessive startup context", "142,318",
            "The total measured by Claude is 142,318 tokens, which falls in the Excessive band "
            "(over 60,000).");
        row("zero, en_US", 0, "en_US", "Lean startup context", "0",
            "The total measured by Claude is 0 tokens, which falls in the Lean band (under "
            "30,000).");
        row("heavy, de_DE", 42'318, "de_DE", "Heavy startup context", "42.318",
            "The total measured by Claude is 42.318 tokens, which falls in the Heavy band "
            "(30.000–60.000).");
        row("excessive, C", 1'234'567, "C", "Excessive startup context", "1,234,567",
            "The total measured by Claude is 1,234,567 tokens, which falls in the Excessive band "
            "(over 60,000).");
        row("excessive, hi_IN", 1'234'567, "hi_IN", "Excessive startup context", "12,34,567",
            "The total measured by Claude is 12,34,567 tokens, which falls in the Excessive band "
            "(over 60,000).");
    }

    void saysWhereTheTotalFalls()
    {
        QFETCH(const qint64, total);
        QFETCH(const QByteArray, language);
        const auto band = shown(total, language);
        QTEST(band->title(), "title");
        QTEST(band->total(), "figure");
        QTEST(band->sentence(), "sentence");
    }

    void namesAllBandsFromLeanToExcessive()
    {
        const QStringList expected = {QStringLiteral("Lean"), QStringLiteral("Heavy"),
                                      QStringLiteral("Excessive")};
        QCOMPARE(shown(42'318, "en_US")->bands(), expected);
    }

    void describesTheMeterInWords_data()
    {
        QTest::addColumn<QByteArray>("language");
        QTest::addColumn<QString>("summary");
        const auto english = QStringLiteral(
            "Band meter from 0 to 150,000 tokens: 142,318 tokens are Excessive. Lean "
            "under 30,000, Heavy 30,000–60,000, Excessive over 60,000.");
        QTest::newRow("en_US") << QByteArray("en_US") << english;
        QTest::newRow("C") << QByteArray("C") << english;
        QTest::newRow("de_DE") << QByteArray("de_DE")
                               << QStringLiteral(
                                      "Band meter from 0 to 150.000 tokens: 142.318 tokens "
                                      "are Excessive. Lean under 30.000, Heavy "
                                      "30.000–60.000, Excessive over 60.000.");
        QTest::newRow("hi_IN") << QByteArray("hi_IN")
                               << QStringLiteral("Band meter from 0 to 1,50,000 tokens: 1,42,318 "
                                                 "tokens are Excessive. Lean under 30,000, Heavy "
                                                 "30,000–60,000, Excessive over 60,000.");
    }

    void describesTheMeterInWords()
    {
        QFETCH(const QByteArray, language);
        QTEST(shown(142'318, language)->meterSummary(), "summary");
    }

    void explainsTheThresholds()
    {
        QCOMPARE(
            shown(42'318, "de_DE")->anchorNote(),
            QStringLiteral("Anchor: a measured subagent startup slab on this machine was 24,508 "
                           "tokens (halden-machine-config tests/context_probe_record.json, "
                           "2026-08-23). A main session adds catalogues a subagent does not "
                           "receive, so 30,000 sits just above that measured floor, and 60,000 "
                           "is where startup exceeds a quarter of a 200k window."));
    }

    void describesTheGaugeInWords_data()
    {
        QTest::addColumn<QByteArray>("language");
        QTest::addColumn<QString>("detail");
        const auto english =
            QStringLiteral("5 of 100 — how much of the 150,000-token band scale is still free.");
        QTest::newRow("en_US") << QByteArray("en_US") << english;
        QTest::newRow("C") << QByteArray("C") << english;
        QTest::newRow("de_DE") << QByteArray("de_DE")
                               << QStringLiteral("5 of 100 — how much of the 150.000-token band "
                                                 "scale is still free.");
        QTest::newRow("hi_IN") << QByteArray("hi_IN")
                               << QStringLiteral("5 of 100 — how much of the 1,50,000-token band "
                                                 "scale is still free.");
    }

    void describesTheGaugeInWords()
    {
        QFETCH(const QByteArray, language);
        const auto band = shown(142'318, language);
        QCOMPARE(band->scoreText(), QStringLiteral("5"));
        QCOMPARE(band->scoreSummary(), QStringLiteral("Illustrative score 5 of 100"));
        QTEST(band->scoreDetail(), "detail");
    }

    void aTotalOfZeroScoresOneHundred()
    {
        const auto band = shown(0, "en_US");
        QCOMPARE(band->scoreText(), QStringLiteral("100"));
        QCOMPARE(band->scoreSummary(), QStringLiteral("Illustrative score 100 of 100"));
        QCOMPARE(
            band->scoreDetail(),
            QStringLiteral("100 of 100 — how much of the 90,000-token band scale is still free."));
    }

    void aTotalOf95000IsOnTheScaleOf120000()
    {
        QCOMPARE(
            shown(95'000, "en_US")->scoreDetail(),
            QStringLiteral("20 of 100 — how much of the 120,000-token band scale is still free."));
    }

    void saysWhatTheScoreIsDerivedFrom()
    {
        const auto caption = [](const char *band) {
            return QStringLiteral("Derived from the %1 band position of the Claude-reported total. "
                                  "These bands are this app's opinion, not an industry standard.")
                .arg(QLatin1String(band));
        };
        QCOMPARE(shown(27'654, "en_US")->scoreCaption(), caption("Lean"));
        QCOMPARE(shown(42'318, "C")->scoreCaption(), caption("Heavy"));
        QCOMPARE(shown(142'318, "hi_IN")->scoreCaption(), caption("Excessive"));
    }

    void showsTotalsBeyondThirtyTwoBits()
    {
        QCOMPARE(shown(9'007'199'254'740'993, "en_US")->total(),
                 QStringLiteral("9,007,199,254,740,993"));
    }

    void theScoreIsTheFreePartOfTheScale_data()
    {
        QTest::addColumn<qint64>("total");
        QTest::addColumn<int>("score");
        QTest::newRow("nothing leaves all of it") << qint64(0) << 100;
        QTest::newRow("less than nothing leaves no more") << qint64(-1) << 100;
        QTest::newRow("a single token is cut off") << qint64(1) << 99;
        QTest::newRow("lean") << qint64(27'654) << 69;
        QTest::newRow("a third") << qint64(30'000) << 66;
        QTest::newRow("half") << qint64(45'000) << 50;
        QTest::newRow("two thirds") << qint64(60'000) << 33;
        QTest::newRow("the last of the normal scale") << qint64(89'999) << 0;
        QTest::newRow("the first of the next scale") << qint64(90'000) << 25;
        QTest::newRow("95,000 of 120,000") << qint64(95'000) << 20;
        QTest::newRow("142,318 of 150,000") << qint64(142'318) << 5;
        QTest::newRow("nine million") << qint64(9'000'000) << 0;
        QTest::newRow("the largest") << std::numeric_limits<qint64>::max() << 0;
    }

    void theScoreIsTheFreePartOfTheScale()
    {
        QFETCH(const qint64, total);
        QTEST(headroomScore(total), "score");
    }

private:
    std::unique_ptr<BandPresenter> m_presenter;
};

const RegisteredTest<BandPresenterTest> registered("BandPresenter");

} // namespace Loadwick

#include "BandPresenterTest.moc"
