#include "overview/BandTexts.h"

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

/// As a desktop set to that language shows them; "C" is one that is set to none.
BandTexts textsOf(std::int64_t total, const char *language)
{
    return BandTexts::fromReport(reportOf(total),
                                 TextLocale::fromEnvironment({{"LC_ALL", language}}));
}

} // namespace

class BandTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhereTheTotalFalls_data();
    void saysWhereTheTotalFalls();
    void namesAllBandsFromLeanToExcessive();
    void putsTheMeterIntoWords_data();
    void putsTheMeterIntoWords();
    void saysWhyTheBandsLieWhereTheyLie();
    void putsTheGaugeIntoWords_data();
    void putsTheGaugeIntoWords();
    void aTotalOfNothingScoresOneHundred();
    void aTotalOf95000SpeaksOfThe120000TokenScale();
    void saysWhatTheScoreIsDerivedFrom();
    void showsTotalsBeyondThirtyTwoBits();
};

void BandTextsTest::saysWhereTheTotalFalls_data()
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
        "The total measured by Claude is 0 tokens, which falls in the Lean band (under 30,000).");
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

void BandTextsTest::saysWhereTheTotalFalls()
{
    QFETCH(const qint64, total);
    QFETCH(const QByteArray, language);
    const BandTexts texts = textsOf(total, language);
    QTEST(texts.title, "title");
    QTEST(texts.total, "figure");
    QTEST(texts.sentence, "sentence");
}

void BandTextsTest::namesAllBandsFromLeanToExcessive()
{
    const QStringList expected = {QStringLiteral("Lean"), QStringLiteral("Heavy"),
                                  QStringLiteral("Excessive")};
    QCOMPARE(textsOf(42'318, "en_US").bands, expected);
}

void BandTextsTest::putsTheMeterIntoWords_data()
{
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<QString>("summary");
    const auto english =
        QStringLiteral("Band meter from 0 to 150,000 tokens: 142,318 tokens are Excessive. Lean "
                       "under 30,000, Heavy 30,000–60,000, Excessive over 60,000.");
    QTest::newRow("en_US") << QByteArray("en_US") << english;
    QTest::newRow("C") << QByteArray("C") << english;
    QTest::newRow("de_DE") << QByteArray("de_DE")
                           << QStringLiteral("Band meter from 0 to 150.000 tokens: 142.318 tokens "
                                             "are Excessive. Lean under 30.000, Heavy "
                                             "30.000–60.000, Excessive over 60.000.");
    QTest::newRow("hi_IN") << QByteArray("hi_IN")
                           << QStringLiteral("Band meter from 0 to 1,50,000 tokens: 1,42,318 "
                                             "tokens are Excessive. Lean under 30,000, Heavy "
                                             "30,000–60,000, Excessive over 60,000.");
}

void BandTextsTest::putsTheMeterIntoWords()
{
    QFETCH(const QByteArray, language);
    QTEST(textsOf(142'318, language).meterSummary, "summary");
}

void BandTextsTest::saysWhyTheBandsLieWhereTheyLie()
{
    QCOMPARE(textsOf(42'318, "de_DE").anchorNote,
             QStringLiteral("Anchor: a measured subagent startup slab on this machine was 24,508 "
                            "tokens (halden-machine-config tests/context_probe_record.json, "
                            "2026-08-23). A main session adds catalogues a subagent does not "
                            "receive, so 30,000 sits just above that measured floor, and 60,000 "
                            "is where startup exceeds a quarter of a 200k window."));
}

void BandTextsTest::putsTheGaugeIntoWords_data()
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

void BandTextsTest::putsTheGaugeIntoWords()
{
    QFETCH(const QByteArray, language);
    const BandTexts texts = textsOf(142'318, language);
    QCOMPARE(texts.score, QStringLiteral("5"));
    QCOMPARE(texts.scoreSummary, QStringLiteral("Illustrative score 5 of 100"));
    QTEST(texts.scoreDetail, "detail");
}

void BandTextsTest::aTotalOfNothingScoresOneHundred()
{
    const BandTexts texts = textsOf(0, "en_US");
    QCOMPARE(texts.score, QStringLiteral("100"));
    QCOMPARE(texts.scoreSummary, QStringLiteral("Illustrative score 100 of 100"));
    QCOMPARE(texts.scoreDetail,
             QStringLiteral("100 of 100 — how much of the 90,000-token band scale is still free."));
}

void BandTextsTest::aTotalOf95000SpeaksOfThe120000TokenScale()
{
    QCOMPARE(textsOf(95'000, "en_US").scoreDetail,
             QStringLiteral("20 of 100 — how much of the 120,000-token band scale is still free."));
}

void BandTextsTest::saysWhatTheScoreIsDerivedFrom()
{
    const auto caption = [](const char *band) {
        return QStringLiteral("Derived from the %1 band position of the Claude-reported total. "
                              "These bands are this app's opinion, not an industry standard.")
            .arg(QLatin1String(band));
    };
    QCOMPARE(textsOf(27'654, "en_US").scoreCaption, caption("Lean"));
    QCOMPARE(textsOf(42'318, "C").scoreCaption, caption("Heavy"));
    QCOMPARE(textsOf(142'318, "hi_IN").scoreCaption, caption("Excessive"));
}

void BandTextsTest::showsTotalsBeyondThirtyTwoBits()
{
    QCOMPARE(textsOf(9'007'199'254'740'993, "en_US").total,
             QStringLiteral("9,007,199,254,740,993"));
}

const RegisteredTest<BandTextsTest> registered("BandTexts");

} // namespace Loadwick

#include "BandTextsTest.moc"
