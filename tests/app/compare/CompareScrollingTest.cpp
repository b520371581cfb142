#include <algorithm>
#include <set>

#include <QTest>

#include "samples/SampleHistories.h"
#include "support/ComparePage.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

std::set<int> indicesOf(const QList<QQuickItem *> &cards)
{
    std::set<int> indices;
    for (const QQuickItem *card : cards)
        indices.insert(card->property("repositoryIndex").toInt());
    return indices;
}

} // namespace

/// The page with more than it can show at once.
class CompareScrollingTest : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void noteIndices();

private Q_SLOTS:
    void init() { m_page = std::make_unique<ComparePage>(); }
    void cleanup() { m_page.reset(); }
    void keepsTheScrollPositionWhenAScanEnds();
    void createsOnlyVisibleCardsOfTwoHundred();
    void aViewportAsHighAsThePageNeedsNoMoreCells();
    void scrollingCreatesNoCards();
    void everyPositionShowsTheRightRepository();
    void createsAllOfFewTallCards_data();
    void createsAllOfFewTallCards();
    void aReusedCardGivesUpTheFocus();
    void reusesOneCardPerFrame();
    void scrollsToTheLastLineOfTwoHundredRepositories();

private:
    [[nodiscard]] bool cardsFillThePage();

    std::unique_ptr<ComparePage> m_page;
    std::set<int> m_shownIndices; ///< at the last turn of the cards
    std::size_t m_mostNewIndices = 0;
};

// Called between two turns of the cards.
void CompareScrollingTest::noteIndices()
{
    const std::set<int> now = indicesOf(m_page->cards());
    const auto isNew = [&](int index) { return !m_shownIndices.contains(index); };
    const auto count = static_cast<std::size_t>(std::ranges::count_if(now, isNew));
    m_mostNewIndices = std::max(m_mostNewIndices, count);
    m_shownIndices = now;
}

// Whether the cards, each at its own position, cover the page from top to bottom.
bool CompareScrollingTest::cardsFillThePage()
{
    qreal filled = 0;
    for (const QQuickItem *card : m_page->cards()) {
        const QRectF shown = card->mapRectToItem(m_page->viewport(), card->boundingRect());
        const qreal top = std::max(0.0, shown.top());
        const qreal bottom = std::min(m_page->viewport()->height(), shown.bottom());
        filled += std::max(0.0, bottom - top) * shown.width();
    }
    // There are gaps between cards.
    return filled > 0.85 * m_page->viewport()->height() * m_page->viewport()->width();
}

void CompareScrollingTest::keepsTheScrollPositionWhenAScanEnds()
{
    m_page->record(SampleHistories::ofSize(30, 5, 7));
    m_page->viewport()->setProperty("contentY", 420);
    QTest::qWait(20);
    m_page->record(SampleHistories::ofSize(31, 5, 7));
    QTest::qWait(50);
    QCOMPARE(m_page->viewport()->property("contentY").toInt(), 420);
    QCOMPARE(m_page->items("bars").size(), 5);
}

void CompareScrollingTest::createsOnlyVisibleCardsOfTwoHundred()
{
    m_page->record(SampleHistories::ofSize(200, 200, 50));
    QCOMPARE(m_page->compare().columnCount(), 200);
    QVERIFY(m_page->items("words").size() < 40);
    QVERIFY2(m_page->items("bar").size() < 200,
             qPrintable(QString::number(m_page->items("bar").size())));
    m_page->viewport()->setProperty("contentY", 200 * 48 + 3'000);
    QTRY_VERIFY(!m_page->items("bar").isEmpty());
    QTest::qWait(50);
    QVERIFY2(m_page->items("bar").size() < 400,
             qPrintable(QString::number(m_page->items("bar").size())));
    m_page->viewport()->setProperty("contentY", 0);
    QTest::qWait(50);
    m_page->viewport()->setProperty("contentY", 200 * 48 + 3'000);
    QTRY_VERIFY2(!m_page->items("bar").isEmpty(), "a card scrolled out of sight reappears");
}

// The page's first layout gives the viewport its content's height.
void CompareScrollingTest::aViewportAsHighAsThePageNeedsNoMoreCells()
{
    m_page->record(SampleHistories::ofSize(200, 200, 2));
    const QQuickItem *grid = m_page->items("cell").constFirst()->parentItem();
    const int cells = grid->property("cellCount").toInt();
    QVERIFY2(cells < 40, qPrintable(QString::number(cells)));
    m_page->viewport()->setHeight(50'000);
    QCOMPARE(grid->property("cellCount").toInt(), cells);
}

void CompareScrollingTest::scrollingCreatesNoCards()
{
    m_page->record(SampleHistories::ofSize(200, 200, 2));
    QTRY_COMPARE(m_page->cards().size(), m_page->items("cell").size());
    QVERIFY(m_page->cards().size() > 6);
    const QList<QQuickItem *> before = m_page->cards();
    QVERIFY2(before.size() < 40, qPrintable(QString::number(before.size())));
    for (const qreal position : {12'000.0, 12'240.0, 20'000.0, 11'000.0}) {
        m_page->viewport()->setProperty("contentY", position);
        QTest::qWait(20);
        QCOMPARE(m_page->cards(), before);
    }
}

void CompareScrollingTest::everyPositionShowsTheRightRepository()
{
    m_page->record(SampleHistories::ofSize(200, 200, 2));
    QTRY_COMPARE(m_page->cards().size(), m_page->items("cell").size());
    QVERIFY(m_page->cards().size() > 6);
    for (const qreal position : {12'000.0, 12'300.0, 20'000.0, 11'000.0}) {
        m_page->viewport()->setProperty("contentY", position);
        QTRY_VERIFY(cardsFillThePage());
        for (const QQuickItem *card : m_page->cards())
            QCOMPARE(card->property("column").value<ColumnPresenter *>()->path(),
                     m_page->columnAt(card->property("repositoryIndex").toInt())->path());
        QCOMPARE(indicesOf(m_page->cards()).size(),
                 static_cast<std::size_t>(m_page->cards().size()));
    }
}

void CompareScrollingTest::createsAllOfFewTallCards_data()
{
    QTest::addColumn<int>("repositories");
    QTest::addColumn<int>("categories");
    QTest::newRow("last line not full") << 3 << 41;
    QTest::newRow("three lines") << 5 << 25;
    QTest::newRow("two") << 2 << 80;
}

void CompareScrollingTest::createsAllOfFewTallCards()
{
    QFETCH(const int, repositories);
    QFETCH(const int, categories);
    m_page->record(SampleHistories::ofSize(repositories, repositories, categories));
    QVERIFY(m_page->compare().isLarge());
    QTRY_COMPARE(m_page->cards().size(), repositories);
    QCOMPARE(indicesOf(m_page->cards()).size(), static_cast<std::size_t>(repositories));
}

// Its rows are reused too, with other values.
void CompareScrollingTest::aReusedCardGivesUpTheFocus()
{
    m_page->record(SampleHistories::ofSize(200, 200, 2));
    QTRY_COMPARE(m_page->cards().size(), m_page->items("cell").size());
    QQuickItem *card = m_page->cards().constFirst();
    ComparePage::barsBelow(card).constFirst()->forceActiveFocus();
    QTest::qWait(100); // the page follows the focus
    const int before = card->property("repositoryIndex").toInt();
    m_page->viewport()->setProperty("contentY", 20'000.0);
    QTRY_VERIFY(card->property("repositoryIndex").toInt() != before);
    QVERIFY(qobject_cast<BarRow *>(m_page->view().activeFocusItem()) == nullptr);
}

void CompareScrollingTest::reusesOneCardPerFrame()
{
    m_page->record(SampleHistories::ofSize(200, 200, 2));
    QTRY_COMPARE(m_page->cards().size(), m_page->items("cell").size());
    QObject *grid = m_page->items("cell").constFirst()->parentItem();
    m_shownIndices = indicesOf(m_page->cards());
    connect(grid, SIGNAL(turn(int)), this, SLOT(noteIndices()));
    m_page->viewport()->setProperty("contentY", 12'000.0);
    QTRY_VERIFY(cardsFillThePage());
    QCOMPARE(m_mostNewIndices, std::size_t{1});
}

void CompareScrollingTest::scrollsToTheLastLineOfTwoHundredRepositories()
{
    m_page->record(SampleHistories::ofSize(200, 200, 50));
    const qreal end =
        m_page->viewport()->property("contentHeight").toReal() - m_page->viewport()->height();
    m_page->viewport()->setProperty("contentY", end);
    QTest::qWait(50);
    const auto bars = ComparePage::barsBelow(m_page->items("combined")[0]);
    QVERIFY(!bars.isEmpty());
    const auto isHigher = [](const auto *one, const auto *other) { return one->y() < other->y(); };
    const BarRow *last = *std::ranges::max_element(bars, isHigher);
    QCOMPARE(last->property("name").toString(), m_page->columnAt(199)->name());
}

const RegisteredTest<CompareScrollingTest> registered("CompareScrolling");

} // namespace Loadwick

#include "CompareScrollingTest.moc"
