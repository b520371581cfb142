#include <set>

#include <QTest>

#include "samples/SampleHistories.h"
#include "support/ComparePage.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

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

} // namespace

/// What the page is made of, which is what it costs to make.
class ComparePartsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_page = std::make_unique<ComparePage>(); }
    void cleanup() { m_page.reset(); }
    void aCardIsMadeOfFewParts();
    void aRowIsMadeOfFewParts();

private:
    std::unique_ptr<ComparePage> m_page;
};

void ComparePartsTest::aCardIsMadeOfFewParts()
{
    m_page->record(SampleHistories::ofSize(2, 2, 6));
    const QQuickItem *card =
        m_page->items("cell").constFirst()->property("item").value<QQuickItem *>();
    const std::size_t bars =
        6 * partCount(*ComparePage::barsBelow(m_page->items("bars")[0]).constFirst());
    const std::size_t count = partCount(*card) - bars;
    QVERIFY2(count <= 100, qPrintable(QString::number(count)));
}

void ComparePartsTest::aRowIsMadeOfFewParts()
{
    m_page->record(SampleHistories::ofSize(2, 2, 6));
    const auto bars = ComparePage::barsBelow(m_page->view().rootObject());
    for (const BarRow *bar : bars)
        QVERIFY2(partCount(*bar) <= 3, qPrintable(QString::number(partCount(*bar))));
    const QQuickItem *rank = m_page->items("rank").constFirst();
    const std::size_t count = partCount(*rank->parentItem()->parentItem());
    QVERIFY2(count <= 40, qPrintable(QString::number(count)));
}

const RegisteredTest<ComparePartsTest> registered("CompareParts");

} // namespace Loadwick

#include "ComparePartsTest.moc"
