#include <set>

#include <QFontMetricsF>
#include <QTest>

#include "samples/SampleHistories.h"
#include "support/ComparePage.h"
#include "support/RecordedScanBuilder.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"

namespace Loadwick {
namespace {

QString nameOf(const QQuickItem &bar)
{
    return bar.property("name").toString();
}

void collectParts(const QObject &object, std::set<const QObject *> &parts)
{
    if (!parts.insert(&object).second)
        return;
    for (const QObject *child : object.children())
        collectParts(*child, parts);
    if (const auto *item = qobject_cast<const QQuickItem *>(&object)) {
        const auto children = item->childItems();
        for (const QQuickItem *child : children)
            collectParts(*child, parts);
    }
}

/// The number of objects in an item: the cost of creating it, without a clock.
std::size_t partCount(const QObject &item)
{
    std::set<const QObject *> parts;
    collectParts(item, parts);
    return parts.size();
}

} // namespace

/// What the page shows of a few repositories.
class CompareViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_page = std::make_unique<ComparePage>(); }
    void cleanup() { m_page.reset(); }
    void oneRepositoryShowsNoLeaderboard();
    void twoRepositoriesShowALeaderboardCardsAndOneChart();
    void theChartAppearsWithTheSecondRepository();
    void theLeaderboardShowsRanksAndPaths();
    void laysCardsSideBySideIfTheyFit();
    void stacksCardsThatDoNotFit();
    void aCategoryKeepsItsRowInEveryCard();
    void equalTokensAreEquallyLongInEveryCard();
    void aScanWithoutCategoriesSaysSoOnItsCard();
    void alignsTheFiguresOfAList();
    void longNamesPushNoFigureOut();
    void explainsTheBars();
    void aCardIsMadeOfFewParts();
    void aRowIsMadeOfFewParts();

private:
    std::unique_ptr<ComparePage> m_page;
};

void CompareViewTest::oneRepositoryShowsNoLeaderboard()
{
    m_page->record(SampleHistories::ofSize(3, 1, 5));
    QVERIFY(m_page->items("leaderboard").isEmpty());
    QVERIFY(m_page->items("bars").isEmpty());
}

void CompareViewTest::twoRepositoriesShowALeaderboardCardsAndOneChart()
{
    m_page->record(SampleHistories::ofSize(7, 2, 6));
    QCOMPARE(m_page->items("leaderboard").size(), 1);
    QCOMPARE(m_page->items("bars").size(), 2);
    QCOMPARE(m_page->items("combined").size(), 1);
    QCOMPARE(m_page->items("bar").size(), 2 * 6 + 2 * 6);
}

void CompareViewTest::theChartAppearsWithTheSecondRepository()
{
    m_page->record(SampleHistories::ofSize(1, 1, 6));
    m_page->record(SampleHistories::ofSize(2, 2, 6));
    QCOMPARE(m_page->items("leaderboard").size(), 1);
    m_page->record({});
    QVERIFY(m_page->items("leaderboard").isEmpty());
}

void CompareViewTest::theLeaderboardShowsRanksAndPaths()
{
    m_page->record({RecordedScanBuilder().named("app").in("/a/app").ofTotal(5).build(),
                    RecordedScanBuilder().named("app").in("/b/app").ofTotal(9).build()});
    const QList<QQuickItem *> ranks = m_page->items("rank");
    QCOMPARE(ranks.size(), 2);
    QCOMPARE(ranks[1]->property("text").toString(), QStringLiteral("2"));
    const QList<QQuickItem *> words = m_page->items("words");
    QCOMPARE(words[0]->property("whole").toString(), QStringLiteral("/b/app"));
    QCOMPARE(words[1]->property("whole").toString(), QStringLiteral("/a/app"));
}

void CompareViewTest::laysCardsSideBySideIfTheyFit()
{
    m_page->record(SampleHistories::ofSize(2, 2, 6));
    const QList<QQuickItem *> bars = m_page->items("bars");
    QCOMPARE(bars[0]->mapToScene({}).y(), bars[1]->mapToScene({}).y());
    QVERIFY(bars[0]->mapToScene({}).x() < bars[1]->mapToScene({}).x());
}

void CompareViewTest::stacksCardsThatDoNotFit()
{
    m_page->record(SampleHistories::ofSize(2, 2, 6));
    m_page->view().resize(500, 700);
    QTRY_COMPARE(m_page->items("bars")[0]->mapToScene({}).x(),
                 m_page->items("bars")[1]->mapToScene({}).x());
    const QList<QQuickItem *> bars = m_page->items("bars");
    QVERIFY(bars[0]->mapToScene({}).y() + bars[0]->height() < bars[1]->mapToScene({}).y());
}

void CompareViewTest::aCategoryKeepsItsRowInEveryCard()
{
    m_page->record(
        {RecordedScanBuilder().in("/a").withCategory("x", 9).withCategory("y", 5).build(),
         RecordedScanBuilder().in("/b").withCategory("y", 1).build()});
    const QList<QQuickItem *> bars = m_page->items("bars");
    const auto first = ComparePage::barsBelow(bars[0]);
    const auto second = ComparePage::barsBelow(bars[1]);
    QCOMPARE(first.size(), 2);
    QCOMPARE(second.size(), 2);
    QCOMPARE(nameOf(*second[1]), QStringLiteral("y"));
    QCOMPARE(first[1]->mapToScene({}).y(), second[1]->mapToScene({}).y());
}

void CompareViewTest::equalTokensAreEquallyLongInEveryCard()
{
    m_page->record(
        {RecordedScanBuilder().in("/a").withCategory("x", 90).withCategory("y", 30).build(),
         RecordedScanBuilder().in("/b").withCategory("y", 30).build()});
    const auto first = ComparePage::barsBelow(m_page->items("bars")[0]);
    const auto second = ComparePage::barsBelow(m_page->items("bars")[1]);
    QCOMPARE(first[1]->layout().bar.width(), second.last()->layout().bar.width());
    QCOMPARE(first[0]->layout().bar, first[0]->layout().track);
}

void CompareViewTest::aScanWithoutCategoriesSaysSoOnItsCard()
{
    m_page->record({RecordedScanBuilder().in("/a").withCategory("x", 90).build(),
                    RecordedScanBuilder().in("/b").build()});
    const QList<QQuickItem *> words = m_page->items("empty");
    QCOMPARE(words.size(), 1);
    QCOMPARE(words[0]->property("text").toString(), QStringLiteral("No category estimates"));
}

void CompareViewTest::alignsTheFiguresOfAList()
{
    m_page->record(SampleHistories::ofSize(31, 5, 7));
    std::set<qreal> ranked;
    const auto values = visibleItems(m_page->items("leaderboard")[0], QStringLiteral("value"));
    for (const QQuickItem *value : values)
        ranked.insert(rightEdge(value));
    QCOMPARE(ranked.size(), std::size_t(1));
    std::set<qreal> combined;
    const auto bars = ComparePage::barsBelow(m_page->items("combined")[0]);
    for (const BarRow *bar : bars)
        combined.insert(bar->mapRectToScene(bar->layout().value).right());
    QCOMPARE(combined.size(), std::size_t(1));
}

void CompareViewTest::longNamesPushNoFigureOut()
{
    const std::string name(300, 'n');
    const std::string category(80, 'c');
    m_page->view().resize(480, 700);
    m_page->record(
        {RecordedScanBuilder().named(name).in("/a").withCategory(category, 9'876'543).build(),
         RecordedScanBuilder().in("/b").withCategory("x", 1).ofTotal(9'876'543).build()});
    const QList<QQuickItem *> values = m_page->items("value");
    QCOMPARE(values.size(), 2);
    for (const QQuickItem *value : values) {
        QVERIFY(rightEdge(value) <= 480 - 24 - 16);
        QVERIFY(!value->property("truncated").toBool());
        QVERIFY(value->width() >= value->implicitWidth());
    }
    const QList<BarRow *> bars = ComparePage::barsBelow(m_page->view().rootObject());
    QCOMPARE(bars.size(), 2 * 2 + 2 * 2);
    for (const BarRow *bar : bars) {
        const QFontMetricsF metrics(bar->style()->valueFont);
        const QRectF value = bar->layout().value;
        QVERIFY(bar->mapRectToScene(value).right() <= 480 - 24 - 16);
        QVERIFY(value.width() >= metrics.horizontalAdvance(bar->property("value").toString()));
        QVERIFY(bar->layout().name.right() < value.left());
    }
}

void CompareViewTest::explainsTheBars()
{
    const QStringList expected = {
        QStringLiteral("One bar is one category of one repository's latest recorded scan. Its "
                       "length is the category's tokens; all bars share one scale."),
        QStringLiteral("The categories stand heaviest first, by their tokens in all repositories "
                       "together. Within each, the repositories keep one order and one colour; "
                       "after five, the colours start again."),
        QStringLiteral("A missing bar, with a dash for its figure, means that the category was not "
                       "recorded for that repository. A category recorded with no tokens says 0."),
        QStringLiteral("Totals are authoritative, as reported by Claude. The category splits are "
                       "local estimates."),
    };
    m_page->record(SampleHistories::ofSize(2, 2, 6));
    const QQuickItem *card = m_page->items("combined").constFirst();
    while (!card->property("reading").isValid())
        card = card->parentItem();
    QCOMPARE(card->property("reading").toStringList(), expected);
}

void CompareViewTest::aCardIsMadeOfFewParts()
{
    m_page->record(SampleHistories::ofSize(2, 2, 6));
    const QQuickItem *card = m_page->cards().constFirst();
    const std::size_t bars =
        6 * partCount(*ComparePage::barsBelow(m_page->items("bars")[0]).constFirst());
    const std::size_t count = partCount(*card) - bars;
    QVERIFY2(count <= 100, qPrintable(QString::number(count)));
}

void CompareViewTest::aRowIsMadeOfFewParts()
{
    m_page->record(SampleHistories::ofSize(2, 2, 6));
    const auto bars = ComparePage::barsBelow(m_page->view().rootObject());
    for (const BarRow *bar : bars)
        QVERIFY2(partCount(*bar) <= 3, qPrintable(QString::number(partCount(*bar))));
    const QQuickItem *rank = m_page->items("rank").constFirst();
    const std::size_t count = partCount(*rank->parentItem()->parentItem());
    QVERIFY2(count <= 40, qPrintable(QString::number(count)));
}

const RegisteredTest<CompareViewTest> registered("CompareView");

} // namespace Loadwick

#include "CompareViewTest.moc"
