#include "trends/ScanChangesPresenter.h"

#include <span>

#include <QSignalSpy>
#include <QTest>

#include "components/TrendMark.h"
#include "support/RecordedScanBuilder.h"
#include "support/ScanningModel.h"
#include "support/TestRegistry.h"
#include "support/TimeZone.h"

namespace Loadwick {
namespace {

constexpr std::int64_t firstScan = 1'772'615'727; // 2026-03-04 09:15:27
constexpr std::int64_t day = 86'400;

RecordedScanBuilder scanOf(std::int64_t total, int daysLater = 0)
{
    return RecordedScanBuilder().at(firstScan + daysLater * day).ofTotal(total);
}

std::vector<RecordedScan> scansOf(int count)
{
    std::vector<RecordedScan> scans;
    for (int scan = 0; scan < count; ++scan)
        scans.push_back(scanOf(30'000 + scan, scan).withCategory("tools", scan).build());
    return scans;
}

} // namespace

class ScanChangesPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { show(english()); }

    void needsTwoScansOfOneRepository();
    void comparesTheNewestWithTheOneBefore();
    void listsTheTotalsFirstThenEveryCategoryThatChanged();
    void foldsWhatDidNotChangeIntoOneLine();
    void saysWhyThereAreOnlyTotals_data();
    void saysWhyThereAreOnlyTotals();
    void offersOnlyOlderScansForTheEarlierSide();
    void aLaterScanThatIsNoLongerLaterTakesTheOneBefore();
    void aPointOfTheChartBecomesTheLaterScan();
    void ignoresScansThatDoNotExist();
    void aNewScanIsComparedAtOnce();
    void otherRepositoriesLeaveTheChoice();
    void comparesOnlyWhatIsShownAndNoTwoScansTwice();
    void wordsEveryLocale_data();
    void wordsEveryLocale();
    void noFigureIsWiderThanTheWidest();
    void comparesTheLargestScans();

private:
    static TextLocale english() { return {.numbers = "en_US", .dates = "en_US"}; }
    void show(const TextLocale &locale)
    {
        m_changes = std::make_unique<ScanChangesPresenter>(m_scanning.model, locale);
        m_changes->setShown(true);
    }
    void record(std::vector<RecordedScan> scans, const char *path = "/home/someone/webshop");
    [[nodiscard]] QString row(int index, const char *role) const
    {
        return m_changes->rows()->text(index, QString::fromLatin1(role));
    }
    /// Its name and figures, separated by bars.
    [[nodiscard]] QString rowTexts(int index) const;
    [[nodiscard]] std::pair<int, int> points() const
    {
        return {m_changes->earlierPoint(), m_changes->laterPoint()};
    }

    const TimeZone m_utc{"UTC"};
    ScanningModel m_scanning;
    std::unique_ptr<ScanChangesPresenter> m_changes;
};

void ScanChangesPresenterTest::record(std::vector<RecordedScan> scans, const char *path)
{
    m_scanning.model.history().set(std::move(scans));
    m_changes->show(path);
}

QString ScanChangesPresenterTest::rowTexts(int index) const
{
    return QStringList{row(index, "name"), row(index, "before"), row(index, "after"),
                       row(index, "difference")}
        .join(u'|');
}

void ScanChangesPresenterTest::needsTwoScansOfOneRepository()
{
    const auto verifyNothing = [this] {
        QVERIFY(!m_changes->hasChanges());
        QCOMPARE(m_changes->rows()->count(), 0);
        QCOMPARE(m_changes->unchanged() + m_changes->sentence(), QString());
        QCOMPARE(m_changes->whyOnlyTotals(), QString());
        QCOMPARE(m_changes->widestFigure(), QString());
        QCOMPARE(m_changes->laterScans()->count(), 0);
        QCOMPARE(m_changes->earlierScans()->count(), 0);
        QCOMPARE(m_changes->earlierDate() + m_changes->laterDate(), QString());
        QCOMPARE(points(), std::pair(-1, -1));
    };
    verifyNothing();
    record({scanOf(1).in("/other").build(), scanOf(2).build()});
    verifyNothing();
    record(scansOf(2));
    QVERIFY(m_changes->hasChanges());
    m_changes->setShown(false);
    m_changes->show(std::nullopt);
    verifyNothing();
}

void ScanChangesPresenterTest::comparesTheNewestWithTheOneBefore()
{
    record({scanOf(3, 2).build(), scanOf(1, 0).build(), scanOf(2, 1).build()});
    QCOMPARE(rowTexts(0), QStringLiteral("Total|2|3|+1"));
    QCOMPARE(points(), std::pair(1, 2));
    QCOMPARE(m_changes->earlierDate(), QStringLiteral("Mar 5, 2026, 9:15\u202FAM"));
    QCOMPARE(m_changes->laterDate(), QStringLiteral("Mar 6, 2026, 9:15\u202FAM"));
    QCOMPARE(m_changes->earlierSentence(), QStringLiteral("Before: Mar 5, 2026, 9:15\u202FAM"));
    QCOMPARE(m_changes->sentence(), m_changes->earlierSentence() + QStringLiteral(". ") +
                                        m_changes->laterSentence() + QStringLiteral(". ") +
                                        row(0, "sentence"));
    QCOMPARE(m_changes->laterSentence(), QStringLiteral("After: Mar 6, 2026, 9:15\u202FAM"));
}

void ScanChangesPresenterTest::listsTheTotalsFirstThenEveryCategoryThatChanged()
{
    record({scanOf(42'318)
                .withCategory("mcp tools", 8'240)
                .withCategory("memory files (beyond local estimate)", 2'105)
                .withCategory("messages", 486)
                .build(),
            scanOf(36'204, 1)
                .withCategory("skills", 1'935)
                .withCategory("memory files", 2'480)
                .withCategory("messages", 491)
                .build()});
    QCOMPARE(m_changes->rows()->count(), 5);
    QCOMPARE(rowTexts(0), QStringLiteral("Total|42,318|36,204|-6,114"));
    QCOMPARE(rowTexts(1), QStringLiteral("mcp tools|8,240|gone|-8,240"));
    QCOMPARE(rowTexts(2), QStringLiteral("skills|new|1,935|+1,935"));
    QCOMPARE(rowTexts(3), QStringLiteral("memory files|2,105|2,480|+375"));
    QCOMPARE(rowTexts(4), QStringLiteral("messages|486|491|+5"));
    QCOMPARE(row(0, "note"), QStringLiteral("Authoritative · measured by Claude"));
    QCOMPARE(row(3, "note"), QStringLiteral("before: without files on disk"));
    QCOMPARE(row(4, "note"), QString());
    QCOMPARE(row(0, "sentence"),
             QStringLiteral("Total, before 42,318, after 36,204, difference -6,114 tokens, "
                            "Authoritative · measured by Claude"));
    QCOMPARE(row(1, "sentence"),
             QStringLiteral("mcp tools, before 8,240, gone, difference -8,240 tokens"));
    QCOMPARE(row(2, "sentence"),
             QStringLiteral("skills, new, after 1,935, difference +1,935 tokens"));
    QCOMPARE(row(1, "kind").toInt(), int(TrendKind::Shrank));
    QCOMPARE(row(2, "kind").toInt(), int(TrendKind::Grew));
    QCOMPARE(row(0, "length").toDouble(), 0.0);
    QCOMPARE(row(1, "length").toDouble(), -1.0);
    QCOMPARE(row(2, "length").toDouble(), 1'935.0 / 8'240);
}

void ScanChangesPresenterTest::foldsWhatDidNotChangeIntoOneLine()
{
    const auto scan = [](int daysLater) { return scanOf(30'000, daysLater).withCategory("a", 1); };
    record({scan(0).build(), scan(1).build()});
    QCOMPARE(m_changes->unchanged(), QStringLiteral("1 category unchanged, 1 token"));
    QCOMPARE(m_changes->rows()->count(), 1);
    QCOMPARE(row(0, "difference"), QStringLiteral("+0"));
    QCOMPARE(row(0, "kind").toInt(), int(TrendKind::Unchanged));
    record({scan(0).withCategory("b", 21'000).build(),
            scan(1).withCategory("b", 21'000).withCategory("empty", 0).build()});
    QCOMPARE(m_changes->unchanged(), QStringLiteral("2 categories unchanged, 21,001 tokens"));
    QCOMPARE(rowTexts(1), QStringLiteral("empty|new|0|+0"));
    QCOMPARE(row(1, "length").toDouble(), 0.0);
    QCOMPARE(m_changes->whyOnlyTotals(), QString());
}

void ScanChangesPresenterTest::saysWhyThereAreOnlyTotals_data()
{
    QTest::addColumn<bool>("hasBefore");
    QTest::addColumn<bool>("hasAfter");
    QTest::addColumn<QString>("start");
    QTest::newRow("neither") << false << false << "Neither scan has category estimates, so only";
    QTest::newRow("earlier") << false << true << "The earlier scan has no category estimates, so";
    QTest::newRow("later") << true << false << "The later scan has no category estimates, so";
}

void ScanChangesPresenterTest::saysWhyThereAreOnlyTotals()
{
    QFETCH(const bool, hasBefore);
    QFETCH(const bool, hasAfter);
    QFETCH(const QString, start);
    std::vector<RecordedScan> scans = scansOf(2);
    if (!hasBefore)
        scans[0].categories = {};
    if (!hasAfter)
        scans[1].categories = {};
    record(std::move(scans));
    QCOMPARE(m_changes->rows()->count(), 1);
    QCOMPARE(m_changes->unchanged(), QString());
    QVERIFY2(m_changes->whyOnlyTotals().startsWith(start), qPrintable(m_changes->whyOnlyTotals()));
}

void ScanChangesPresenterTest::offersOnlyOlderScansForTheEarlierSide()
{
    record(scansOf(4));
    QCOMPARE(m_changes->earlierScans()->count(), 3);
    QCOMPARE(m_changes->laterScans()->count(), 3);
    QCOMPARE(m_changes->laterScans()->text(0, QStringLiteral("title")),
             QStringLiteral("Mar 7, 2026, 9:15\u202FAM"));
    QCOMPARE(m_changes->laterScans()->text(0, QStringLiteral("detail")),
             QStringLiteral("30,003 tokens"));
    QCOMPARE(m_changes->laterScans()->text(2, QStringLiteral("title")),
             QStringLiteral("Mar 5, 2026, 9:15\u202FAM"));
    m_changes->chooseEarlier(2);
    QCOMPARE(points(), std::pair(0, 3));
    QCOMPARE(m_changes->earlierRow(), 2);
    m_changes->chooseLater(1);
    QCOMPARE(points(), std::pair(0, 2));
    QCOMPARE(m_changes->laterRow(), 1);
    QCOMPARE(m_changes->earlierRow(), 1);
    QCOMPARE(m_changes->earlierScans()->count(), 2);
    QCOMPARE(m_changes->earlierScans()->text(0, QStringLiteral("title")),
             QStringLiteral("Mar 5, 2026, 9:15\u202FAM"));
    QCOMPARE(rowTexts(1), QStringLiteral("tools|0|2|+2"));
}

void ScanChangesPresenterTest::aLaterScanThatIsNoLongerLaterTakesTheOneBefore()
{
    record(scansOf(4));
    m_changes->chooseLater(1);
    QCOMPARE(points(), std::pair(1, 2));
    m_changes->chooseLater(2);
    QCOMPARE(points(), std::pair(0, 1));
    m_changes->chooseNewest();
    QCOMPARE(points(), std::pair(2, 3));
}

void ScanChangesPresenterTest::aPointOfTheChartBecomesTheLaterScan()
{
    record(scansOf(4));
    m_changes->choosePoint(2);
    QCOMPARE(points(), std::pair(1, 2));
    m_changes->choosePoint(3);
    QCOMPARE(points(), std::pair(1, 3));
    m_changes->choosePoint(0);
    QCOMPARE(points(), std::pair(0, 3));
}

void ScanChangesPresenterTest::ignoresScansThatDoNotExist()
{
    m_changes->choosePoint(0);
    m_changes->chooseEarlier(0);
    m_changes->chooseLater(0);
    QVERIFY(!m_changes->hasChanges());
    record(scansOf(1));
    m_changes->choosePoint(0);
    QCOMPARE(points(), std::pair(-1, -1));
    record(scansOf(3));
    for (const int wrong : {-1, 3}) {
        m_changes->choosePoint(wrong);
        m_changes->chooseEarlier(wrong);
        m_changes->chooseLater(wrong);
        QCOMPARE(points(), std::pair(1, 2));
    }
}

void ScanChangesPresenterTest::aNewScanIsComparedAtOnce()
{
    std::vector<RecordedScan> scans = scansOf(3);
    record(scans);
    m_changes->choosePoint(1);
    scans.push_back(scanOf(50'000, 9).build());
    record(scans);
    QCOMPARE(points(), std::pair(2, 3));
    QCOMPARE(rowTexts(0), QStringLiteral("Total|30,002|50,000|+19,998"));
}

void ScanChangesPresenterTest::otherRepositoriesLeaveTheChoice()
{
    std::vector<RecordedScan> scans = scansOf(3);
    record(scans);
    m_changes->choosePoint(1);
    scans.insert(scans.begin(), scanOf(1, -1).in("/other").build());
    record(scans);
    QCOMPARE(points(), std::pair(0, 1));
    m_changes->chooseEarlier(0);
    QCOMPARE(rowTexts(0), QStringLiteral("Total|30,000|30,001|+1"));
    record(scans, "/other");
    QVERIFY(!m_changes->hasChanges());
}

// Each comparison replaces the rows.
void ScanChangesPresenterTest::comparesOnlyWhatIsShownAndNoTwoScansTwice()
{
    m_changes->setShown(false);
    const QSignalSpy comparisons(m_changes->rows(), &RowList::modelReset);
    record(scansOf(3));
    m_changes->choosePoint(1);
    m_changes->chooseNewest();
    QCOMPARE(comparisons.count(), 0);
    QCOMPARE(m_changes->rows()->count(), 0);
    m_changes->setShown(true);
    QCOMPARE(comparisons.count(), 1);
    m_changes->setShown(false);
    m_changes->setShown(true);
    m_changes->chooseNewest();
    m_changes->chooseLater(0);
    QCOMPARE(comparisons.count(), 1);
    m_changes->choosePoint(1);
    QCOMPARE(comparisons.count(), 2);
}

void ScanChangesPresenterTest::wordsEveryLocale_data()
{
    QTest::addColumn<QString>("sentence");
    QTest::addColumn<QString>("unchanged");
    QTest::addColumn<QString>("earlier");
    QTest::newRow("en_US") << "tools, before 123,456, after 100,000, difference -23,456 tokens"
                           << "1 category unchanged, 1,234,567 tokens"
                           << "Mar 4, 2026, 9:15\u202FAM";
    QTest::newRow("de_DE") << "tools, before 123.456, after 100.000, difference -23.456 tokens"
                           << "1 category unchanged, 1.234.567 tokens"
                           << "4. März 2026, 09:15";
    QTest::newRow("hi_IN") << "tools, before 1,23,456, after 1,00,000, difference -23,456 tokens"
                           << "1 category unchanged, 12,34,567 tokens"
                           << "4 मार्च 2026, 9:15 am";
    QTest::newRow("ar_EG")
        << "tools, before ١٢٣٬٤٥٦, after ١٠٠٬٠٠٠, difference \u061C-٢٣٬٤٥٦ tokens"
        << "١ category unchanged, ١٬٢٣٤٬٥٦٧ tokens"
        << "٤ مارس ٢٠٢٦، ٩:١٥ ص";
}

void ScanChangesPresenterTest::wordsEveryLocale()
{
    QFETCH(const QString, sentence);
    QFETCH(const QString, unchanged);
    QFETCH(const QString, earlier);
    const std::string locale = QTest::currentDataTag();
    show({.numbers = locale, .dates = locale});
    const auto scan = [](int daysLater, std::int64_t tokens) {
        return scanOf(30'000, daysLater)
            .withCategory("tools", tokens)
            .withCategory("same", 1'234'567)
            .build();
    };
    record({scan(0, 123'456), scan(1, 100'000)});
    QCOMPARE(row(1, "sentence"), sentence);
    QCOMPARE(m_changes->unchanged(), unchanged);
    QCOMPARE(m_changes->earlierDate(), earlier);
    QCOMPARE(m_changes->earlierSentence(), QStringLiteral("Before: ") + m_changes->earlierDate());
}

void ScanChangesPresenterTest::noFigureIsWiderThanTheWidest()
{
    record(
        {scanOf(5).withCategory("a", -123'456).build(), scanOf(6, 1).withCategory("a", 7).build()});
    QCOMPARE(m_changes->widestFigure(), QStringLiteral("+123,463"));
    record({scanOf(99'999'999).build(), scanOf(6, 1).build()});
    QCOMPARE(m_changes->widestFigure(), QStringLiteral("+99,999,999"));
}

// The measured time is that of one choice.
void ScanChangesPresenterTest::comparesTheLargestScans()
{
    constexpr int categoryCount = 55'000;
    std::vector<RecordedScan> scans(200, scanOf(1).build());
    for (int index = 0; index < 200; ++index)
        scans[std::size_t(index)] = scanOf(index, index).build();
    for (RecordedScan &scan : std::span(scans).last(2)) {
        RecordedCategories::List categories;
        for (std::int64_t index = 0; index < categoryCount; ++index)
            categories.push_back(
                {"category " + std::to_string(index), index + scan.total % 2 * (index + 1)});
        scan.categories = std::move(categories);
    }
    record(std::move(scans));
    QCOMPARE(m_changes->rows()->count(), 1 + categoryCount);
    QCOMPARE(m_changes->earlierScans()->count(), 199);
    QCOMPARE(row(1, "name"), QStringLiteral("category 54999"));
    QBENCHMARK
    {
        m_changes->chooseEarlier(1); // has no categories
        m_changes->chooseNewest();
    }
    QCOMPARE(row(categoryCount, "difference"), QStringLiteral("+1"));
}

const RegisteredTest<ScanChangesPresenterTest> registered("ScanChangesPresenter");

} // namespace Loadwick

#include "ScanChangesPresenterTest.moc"
