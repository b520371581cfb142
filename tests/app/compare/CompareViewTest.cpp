#include <algorithm>
#include <set>

#include <QFontMetricsF>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QRegularExpression>
#include <QTest>

#include "compare/BarRow.h"
#include "compare/ComparePresenter.h"
#include "export/PageExport.h"
#include "support/FakeFileSaver.h"
#include "support/RecordedScanBuilder.h"
#include "support/SampleHistories.h"
#include "support/ScanningModel.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "theme/ApplicationStyle.h"

namespace Loadwick {
namespace {

/// The rows with a bar below an item.
QList<BarRow *> barsBelow(QQuickItem *root)
{
    QList<BarRow *> bars;
    for (QQuickItem *item : visibleItems(root, QStringLiteral("bar")))
        bars << qobject_cast<BarRow *>(item);
    return bars;
}

std::set<int> placesOf(const QList<QQuickItem *> &cards)
{
    std::set<int> places;
    for (const QQuickItem *card : cards)
        places.insert(card->property("place").toInt());
    return places;
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

/// How many objects an item is made of: what it costs to make it, without a clock.
std::size_t partCount(const QObject &item)
{
    std::set<const QObject *> parts;
    collectParts(item, parts);
    return parts.size();
}

QString nameOf(const QQuickItem &bar)
{
    return bar.property("name").toString();
}

} // namespace

class CompareViewTest : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void notePlaces();

private Q_SLOTS:
    void init();
    void cleanup();
    void oneRepositoryShowsNoLeaderboard();
    void twoRepositoriesShowALeaderboardCardsAndOneChart();
    void theChartAppearsWithTheSecondRepository();
    void ranksAndPathsReachTheLeaderboard();
    void cardsStandSideBySideWhereTheyFit();
    void cardsAreStackedWhereTheyDoNotFit();
    void aCategoryKeepsItsPlaceInEveryCard();
    void equalTokensAreEquallyLongInEveryCard();
    void aScanWithoutCategoriesSaysSoOnItsCard();
    void figuresOfAListEndOnOneLine();
    void aLongNameAndALongCategoryPushNoFigureOut();
    void theScrollPositionStaysWhenAScanEnds();
    void ofTwoHundredRepositoriesOnlyWhatIsSeenIsMade();
    void scrollingMakesNoCards();
    void everyPlaceShowsItsOwnRepository();
    void cardsMoveOnOneInAFrame();
    void theLastLineOfTwoHundredRepositoriesCanBeScrolledTo();
    void aCardIsMadeOfFewParts();
    void aRowIsMadeOfFewParts();

private:
    [[nodiscard]] bool cardsFillThePage();
    void record(std::vector<RecordedScan> scans)
    {
        m_scanning->model.history().set(std::move(scans));
        QTest::qWait(20);
    }
    [[nodiscard]] QList<QQuickItem *> items(const char *name) const
    {
        return visibleItems(m_view->rootObject(), QString::fromLatin1(name));
    }
    [[nodiscard]] QQuickItem *viewport() const;
    [[nodiscard]] QList<QQuickItem *> cards() const;

    std::unique_ptr<ScanningModel> m_scanning;
    std::unique_ptr<ComparePresenter> m_compare;
    FakeFileSaver m_saver;
    PageExport m_export{{}, m_saver, nullptr};
    std::unique_ptr<QQuickView> m_view;
    std::set<int> m_shownPlaces; ///< when it was the cards' turn last
    std::size_t m_mostNewPlaces = 0;
};

void CompareViewTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("Error|unavailable|Cyclic")));
    m_scanning = std::make_unique<ScanningModel>();
    m_compare = std::make_unique<ComparePresenter>(m_scanning->model, TextLocale());
    m_view = std::make_unique<QQuickView>();
    ApplicationStyle::addModulePath(*m_view->engine());
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_view->setInitialProperties({{QStringLiteral("compare"), QVariant::fromValue(m_compare.get())},
                                  {QStringLiteral("exporter"), QVariant::fromValue(&m_export)}});
    m_view->setSource(QUrl(QStringLiteral("qrc:/qt/qml/Loadwick/CompareView.qml")));
    m_view->resize(930, 700);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void CompareViewTest::cleanup()
{
    m_view.reset();
    m_compare.reset();
    m_scanning.reset();
}

QQuickItem *CompareViewTest::viewport() const
{
    return items("leaderboard").constFirst()->property("viewport").value<QQuickItem *>();
}

QList<QQuickItem *> CompareViewTest::cards() const
{
    QList<QQuickItem *> made;
    for (const QQuickItem *cell : items("cell"))
        if (auto *card = cell->property("item").value<QQuickItem *>())
            made << card;
    return made;
}

// Between two turns of the cards.
void CompareViewTest::notePlaces()
{
    const std::set<int> now = placesOf(cards());
    const auto isNew = [&](int place) { return !m_shownPlaces.contains(place); };
    const auto count = static_cast<std::size_t>(std::ranges::count_if(now, isNew));
    m_mostNewPlaces = std::max(m_mostNewPlaces, count);
    m_shownPlaces = now;
}

// Whether the cards, each at a place of its own, reach from the top of the page to its bottom.
bool CompareViewTest::cardsFillThePage()
{
    qreal filled = 0;
    for (const QQuickItem *card : cards()) {
        const QRectF shown = card->mapRectToItem(viewport(), card->boundingRect());
        const qreal top = std::max(0.0, shown.top());
        const qreal bottom = std::min(viewport()->height(), shown.bottom());
        filled += std::max(0.0, bottom - top) * shown.width();
    }
    // Between cards there are gaps.
    return filled > 0.85 * viewport()->height() * viewport()->width();
}

void CompareViewTest::oneRepositoryShowsNoLeaderboard()
{
    record(SampleHistories::ofSize(3, 1, 5));
    QVERIFY(items("leaderboard").isEmpty());
    QVERIFY(items("bars").isEmpty());
}

void CompareViewTest::twoRepositoriesShowALeaderboardCardsAndOneChart()
{
    record(SampleHistories::ofSize(7, 2, 6));
    QCOMPARE(items("leaderboard").size(), 1);
    QCOMPARE(items("bars").size(), 2);
    QCOMPARE(items("combined").size(), 1);
    QCOMPARE(items("bar").size(), 2 * 6 + 2 * 6);
}

void CompareViewTest::theChartAppearsWithTheSecondRepository()
{
    record(SampleHistories::ofSize(1, 1, 6));
    record(SampleHistories::ofSize(2, 2, 6));
    QCOMPARE(items("leaderboard").size(), 1);
    record({});
    QVERIFY(items("leaderboard").isEmpty());
}

void CompareViewTest::ranksAndPathsReachTheLeaderboard()
{
    record({RecordedScanBuilder().named("app").in("/a/app").ofTotal(5).build(),
            RecordedScanBuilder().named("app").in("/b/app").ofTotal(9).build()});
    const QList<QQuickItem *> ranks = items("rank");
    QCOMPARE(ranks.size(), 2);
    QCOMPARE(ranks[1]->property("text").toString(), QStringLiteral("2"));
    const QList<QQuickItem *> words = items("words");
    QCOMPARE(words[0]->property("whole").toString(), QStringLiteral("/b/app"));
    QCOMPARE(words[1]->property("whole").toString(), QStringLiteral("/a/app"));
}

void CompareViewTest::cardsStandSideBySideWhereTheyFit()
{
    record(SampleHistories::ofSize(2, 2, 6));
    const QList<QQuickItem *> bars = items("bars");
    QCOMPARE(bars[0]->mapToScene({}).y(), bars[1]->mapToScene({}).y());
    QVERIFY(bars[0]->mapToScene({}).x() < bars[1]->mapToScene({}).x());
}

void CompareViewTest::cardsAreStackedWhereTheyDoNotFit()
{
    record(SampleHistories::ofSize(2, 2, 6));
    m_view->resize(500, 700);
    QTRY_COMPARE(items("bars")[0]->mapToScene({}).x(), items("bars")[1]->mapToScene({}).x());
    const QList<QQuickItem *> bars = items("bars");
    QVERIFY(bars[0]->mapToScene({}).y() + bars[0]->height() < bars[1]->mapToScene({}).y());
}

void CompareViewTest::aCategoryKeepsItsPlaceInEveryCard()
{
    record({RecordedScanBuilder().in("/a").withCategory("x", 9).withCategory("y", 5).build(),
            RecordedScanBuilder().in("/b").withCategory("y", 1).build()});
    const QList<QQuickItem *> bars = items("bars");
    const auto first = barsBelow(bars[0]);
    const auto second = barsBelow(bars[1]);
    QCOMPARE(first.size(), 2);
    QCOMPARE(second.size(), 2);
    QCOMPARE(nameOf(*second[1]), QStringLiteral("y"));
    QCOMPARE(first[1]->mapToScene({}).y(), second[1]->mapToScene({}).y());
}

void CompareViewTest::equalTokensAreEquallyLongInEveryCard()
{
    record({RecordedScanBuilder().in("/a").withCategory("x", 90).withCategory("y", 30).build(),
            RecordedScanBuilder().in("/b").withCategory("y", 30).build()});
    const auto first = barsBelow(items("bars")[0]);
    const auto second = barsBelow(items("bars")[1]);
    QCOMPARE(first[1]->places().bar.width(), second.last()->places().bar.width());
    QCOMPARE(first[0]->places().bar, first[0]->places().track);
}

void CompareViewTest::aScanWithoutCategoriesSaysSoOnItsCard()
{
    record({RecordedScanBuilder().in("/a").withCategory("x", 90).build(),
            RecordedScanBuilder().in("/b").build()});
    const QList<QQuickItem *> words = items("empty");
    QCOMPARE(words.size(), 1);
    QCOMPARE(words[0]->property("text").toString(), QStringLiteral("No category estimates"));
}

void CompareViewTest::figuresOfAListEndOnOneLine()
{
    record(SampleHistories::ofSize(31, 5, 7));
    std::set<qreal> ranked;
    const auto values = visibleItems(items("leaderboard")[0], QStringLiteral("value"));
    for (const QQuickItem *value : values)
        ranked.insert(rightEdge(value));
    QCOMPARE(ranked.size(), std::size_t(1));
    std::set<qreal> combined;
    const auto bars = barsBelow(items("combined")[0]);
    for (const BarRow *bar : bars)
        combined.insert(bar->mapRectToScene(bar->places().value).right());
    QCOMPARE(combined.size(), std::size_t(1));
}

void CompareViewTest::aLongNameAndALongCategoryPushNoFigureOut()
{
    const std::string name(300, 'n');
    const std::string category(80, 'c');
    m_view->resize(480, 700);
    record({RecordedScanBuilder().named(name).in("/a").withCategory(category, 9'876'543).build(),
            RecordedScanBuilder().in("/b").withCategory("x", 1).ofTotal(9'876'543).build()});
    const QList<QQuickItem *> values = items("value");
    QCOMPARE(values.size(), 2);
    for (const QQuickItem *value : values) {
        QVERIFY(rightEdge(value) <= 480 - 24 - 16);
        QVERIFY(!value->property("truncated").toBool());
        QVERIFY(value->width() >= value->implicitWidth());
    }
    const QList<BarRow *> bars = barsBelow(m_view->rootObject());
    QCOMPARE(bars.size(), 2 * 2 + 2 * 2);
    for (const BarRow *bar : bars) {
        const QFontMetricsF metrics(bar->style()->valueFont);
        const QRectF place = bar->places().value;
        QVERIFY(bar->mapRectToScene(place).right() <= 480 - 24 - 16);
        QVERIFY(place.width() >= metrics.horizontalAdvance(bar->property("value").toString()));
        QVERIFY(bar->places().name.right() < place.left());
    }
}

void CompareViewTest::theScrollPositionStaysWhenAScanEnds()
{
    record(SampleHistories::ofSize(30, 5, 7));
    viewport()->setProperty("contentY", 420);
    QTest::qWait(20);
    record(SampleHistories::ofSize(31, 5, 7));
    QTest::qWait(50);
    QCOMPARE(viewport()->property("contentY").toInt(), 420);
    QCOMPARE(items("bars").size(), 5);
}

void CompareViewTest::ofTwoHundredRepositoriesOnlyWhatIsSeenIsMade()
{
    record(SampleHistories::ofSize(200, 200, 50));
    QCOMPARE(m_compare->columnCount(), 200);
    QVERIFY(items("words").size() < 40);
    QVERIFY2(items("bar").size() < 200, qPrintable(QString::number(items("bar").size())));
    viewport()->setProperty("contentY", 200 * 48 + 3'000);
    QTRY_VERIFY(!items("bar").isEmpty());
    QTest::qWait(50);
    QVERIFY2(items("bar").size() < 400, qPrintable(QString::number(items("bar").size())));
    viewport()->setProperty("contentY", 0);
    QTest::qWait(50);
    viewport()->setProperty("contentY", 200 * 48 + 3'000);
    QTRY_VERIFY2(!items("bar").isEmpty(), "a card that was left can be come back to");
}

void CompareViewTest::scrollingMakesNoCards()
{
    record(SampleHistories::ofSize(200, 200, 2));
    QTRY_COMPARE(cards().size(), items("cell").size());
    QVERIFY(cards().size() > 6);
    const QList<QQuickItem *> before = cards();
    QVERIFY2(before.size() < 40, qPrintable(QString::number(before.size())));
    for (const qreal place : {12'000.0, 12'240.0, 20'000.0, 11'000.0}) {
        viewport()->setProperty("contentY", place);
        QTest::qWait(20);
        QCOMPARE(cards(), before);
    }
}

// Wherever the page is, the cards it shows are those that belong there.
void CompareViewTest::everyPlaceShowsItsOwnRepository()
{
    record(SampleHistories::ofSize(200, 200, 2));
    QTRY_COMPARE(cards().size(), items("cell").size());
    QVERIFY(cards().size() > 6);
    for (const qreal place : {12'000.0, 12'300.0, 20'000.0, 11'000.0}) {
        viewport()->setProperty("contentY", place);
        QTRY_VERIFY(cardsFillThePage());
        for (const QQuickItem *card : cards())
            QCOMPARE(card->property("column").value<ColumnPresenter *>(),
                     m_compare->column(card->property("place").toInt()));
        QCOMPARE(placesOf(cards()).size(), static_cast<std::size_t>(cards().size()));
    }
}

void CompareViewTest::cardsMoveOnOneInAFrame()
{
    record(SampleHistories::ofSize(200, 200, 2));
    QTRY_COMPARE(cards().size(), items("cell").size());
    QObject *grid = items("cell").constFirst()->parentItem();
    m_shownPlaces = placesOf(cards());
    connect(grid, SIGNAL(turn(int)), this, SLOT(notePlaces()));
    viewport()->setProperty("contentY", 12'000.0);
    QTRY_VERIFY(cardsFillThePage());
    QCOMPARE(m_mostNewPlaces, std::size_t{1});
}

void CompareViewTest::theLastLineOfTwoHundredRepositoriesCanBeScrolledTo()
{
    record(SampleHistories::ofSize(200, 200, 50));
    const qreal end = viewport()->property("contentHeight").toReal() - viewport()->height();
    viewport()->setProperty("contentY", end);
    QTest::qWait(50);
    const auto bars = barsBelow(items("combined")[0]);
    QVERIFY(!bars.isEmpty());
    QVERIFY(m_compare->column(199) != nullptr);
    QCOMPARE(nameOf(*bars.last()), m_compare->column(199)->name());
}

void CompareViewTest::aCardIsMadeOfFewParts()
{
    record(SampleHistories::ofSize(2, 2, 6));
    const QQuickItem *card = items("cell").constFirst()->property("item").value<QQuickItem *>();
    const std::size_t bars = 6 * partCount(*barsBelow(items("bars")[0]).constFirst());
    const std::size_t count = partCount(*card) - bars;
    QVERIFY2(count <= 100, qPrintable(QString::number(count)));
}

void CompareViewTest::aRowIsMadeOfFewParts()
{
    record(SampleHistories::ofSize(2, 2, 6));
    const auto bars = barsBelow(m_view->rootObject());
    for (const BarRow *bar : bars)
        QVERIFY2(partCount(*bar) <= 3, qPrintable(QString::number(partCount(*bar))));
    const QQuickItem *rank = items("rank").constFirst();
    const std::size_t count = partCount(*rank->parentItem()->parentItem());
    QVERIFY2(count <= 40, qPrintable(QString::number(count)));
}

const RegisteredTest<CompareViewTest> registered("CompareView");

} // namespace Loadwick

#include "CompareViewTest.moc"
