#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include "samples/SampleHistories.h"
#include "support/ComparePage.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

QString nameOf(QObject *object)
{
    QAccessibleInterface *found = QAccessible::queryAccessibleInterface(object);
    return found == nullptr ? QString() : found->text(QAccessible::Name);
}

} // namespace

/// The page, used by keyboard only. No test changes its data, so all share one page.
class CompareKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_page.reset(); }
    void aCardsHeadIsOneTabStop();
    void arrowKeysWalkThroughACardsHead();
    void tabContinuesFromTheArrowKeysPosition_data();
    void tabContinuesFromTheArrowKeysPosition();
    void everyWordOfAHeadCanBeCopied();
    void arrowKeysScrollBeyondTheHead();
    void everyWordOfAHeadIsAccessible();

private:
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    [[nodiscard]] QString focused();
    /// The words of a card's head, from top to bottom.
    [[nodiscard]] QStringList words(int card);
    /// Focuses the name on a card.
    void goTo(int card);

    std::unique_ptr<ComparePage> m_page;
};

void CompareKeysTest::initTestCase()
{
    m_page = std::make_unique<ComparePage>();
    m_page->view().requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&m_page->view()));
    m_page->record(SampleHistories::ofSize(7, 3, 6));
    QCOMPARE(m_page->cards().size(), 3);
}

void CompareKeysTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&m_page->view(), key, modifiers);
}

QString CompareKeysTest::focused()
{
    return nameOf(m_page->view().activeFocusItem());
}

QStringList CompareKeysTest::words(int card)
{
    const auto column = m_page->columnAt(card);
    return {column->name(), column->scanned(), column->total(), column->bandText()};
}

void CompareKeysTest::goTo(int card)
{
    m_page->items("name")[card]->forceActiveFocus(Qt::TabFocusReason);
    QCOMPARE(focused(), words(card).constFirst());
}

void CompareKeysTest::aCardsHeadIsOneTabStop()
{
    goTo(0);
    press(Qt::Key_Tab);
    const auto card = m_page->columnAt(0);
    QCOMPARE(focused(), card->bars()->text(0, QStringLiteral("spoken")));
    press(Qt::Key_Tab);
    QCOMPARE(focused(), words(1)[0]);
    press(Qt::Key_Backtab);
    press(Qt::Key_Backtab);
    QCOMPARE(focused(), words(0)[0]);
}

void CompareKeysTest::arrowKeysWalkThroughACardsHead()
{
    goTo(1);
    for (int line = 1; line < 4; ++line) {
        press(Qt::Key_Down);
        QCOMPARE(focused(), words(1)[line]);
    }
    for (int line = 2; line >= 0; --line) {
        press(Qt::Key_Up);
        QCOMPARE(focused(), words(1)[line]);
    }
}

void CompareKeysTest::tabContinuesFromTheArrowKeysPosition_data()
{
    QTest::addColumn<int>("steps");
    QTest::newRow("scanned") << 1;
    QTest::newRow("total") << 2;
    QTest::newRow("band") << 3;
}

void CompareKeysTest::tabContinuesFromTheArrowKeysPosition()
{
    QFETCH(const int, steps);
    const auto goDown = [this, steps] {
        goTo(1);
        for (int step = 0; step < steps; ++step)
            press(Qt::Key_Down);
    };
    goDown();
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    QCOMPARE(focused(), words(2)[0]);
    goDown();
    press(Qt::Key_Backtab);
    QCOMPARE(focused(), words(1)[0]);
}

void CompareKeysTest::everyWordOfAHeadCanBeCopied()
{
    goTo(0);
    for (const QString &line : words(0)) {
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), line);
        press(Qt::Key_Down);
    }
}

void CompareKeysTest::arrowKeysScrollBeyondTheHead()
{
    goTo(0);
    press(Qt::Key_Up);
    QCOMPARE(focused(), words(0)[0]);
    for (int count = 0; count < 4; ++count)
        press(Qt::Key_Down);
    QCOMPARE(focused(), words(0)[3]);
}

void CompareKeysTest::everyWordOfAHeadIsAccessible()
{
    const QQuickItem *head = m_page->items("name")[0]->parentItem();
    QStringList found;
    for (QQuickItem *item : head->childItems()) {
        QAccessibleInterface *text = QAccessible::queryAccessibleInterface(item);
        if (text != nullptr && text->role() == QAccessible::EditableText) {
            found << text->text(QAccessible::Name);
            QVERIFY2(text->state().focusable, qPrintable(found.constLast()));
        }
    }
    QCOMPARE(found, words(0));
}

const RegisteredTest<CompareKeysTest> registered("CompareKeys");

} // namespace Loadwick

#include "CompareKeysTest.moc"
