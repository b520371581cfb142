#include "dialogs/ListKeys.h"

#include <memory>
#include <string>

#include <QTest>

#include "support/FolderDialogWindow.h"
#include "support/TestRegistry.h"

namespace Loadwick {

/// In a folder with the folders "bare", "repository" and, after them, "s10" to "s49".
class ListKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }
    void homeAndEndGoToTheEnds();
    void pagesGoToTheEndsInSteps();
    void theLineThatIsReachedIsInSight();
    void whatIsReachedIsChosen();
    void anEmptyListStaysAsItIs();
    void theyAreLeftToAPathThatIsTyped();

private:
    [[nodiscard]] QString after(Qt::Key key);

    std::unique_ptr<FolderDialogWindow> m_window;
};

void ListKeysTest::init()
{
    m_window = std::make_unique<FolderDialogWindow>();
    for (int number = 10; number < 50; ++number)
        std::filesystem::create_directory(m_window->root() / ("s" + std::to_string(number)));
    m_window->open();
}

QString ListKeysTest::after(Qt::Key key)
{
    m_window->press(key);
    return m_window->highlighted();
}

void ListKeysTest::homeAndEndGoToTheEnds()
{
    QCOMPARE(after(Qt::Key_End), QStringLiteral("s49"));
    QCOMPARE(after(Qt::Key_Home), QStringLiteral("bare"));
    QCOMPARE(after(Qt::Key_Down), QStringLiteral("repository"));
}

void ListKeysTest::pagesGoToTheEndsInSteps()
{
    m_window->press(Qt::Key_Home);
    const QString below = after(Qt::Key_PageDown);
    QVERIFY(below > QStringLiteral("repository") && below < QStringLiteral("s30"));
    QCOMPARE(after(Qt::Key_PageUp), QStringLiteral("bare"));
    QCOMPARE(after(Qt::Key_PageUp), QStringLiteral("bare"));
    for (int page = 0; page < 20; ++page)
        m_window->press(Qt::Key_PageDown);
    QCOMPARE(m_window->highlighted(), QStringLiteral("s49"));
}

void ListKeysTest::theLineThatIsReachedIsInSight()
{
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_PageDown}) {
        m_window->press(key);
        (void)m_window->window().grabWindow();
        const QQuickItem *line = m_window->window().activeFocusItem();
        QCOMPARE(line->property("fileName").toString(), m_window->highlighted());
        const QQuickItem *list = line->parentItem()->parentItem();
        QTRY_VERIFY2(list->boundingRect().contains(line->mapRectToItem(list, line->boundingRect())),
                     qPrintable(m_window->highlighted()));
    }
}

void ListKeysTest::whatIsReachedIsChosen()
{
    m_window->press(Qt::Key_End);
    QCOMPARE(m_window->choose(), m_window->root() / "s49");
}

void ListKeysTest::anEmptyListStaysAsItIs()
{
    m_window->press(Qt::Key_Home);
    m_window->press(Qt::Key_Return);
    QTRY_VERIFY(m_window->findNamed(QStringLiteral("No folders to show")) != nullptr);
    QCOMPARE(after(Qt::Key_End), QString());
    QCOMPARE(m_window->choose(), m_window->root() / "bare");
}

void ListKeysTest::theyAreLeftToAPathThatIsTyped()
{
    m_window->press(Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(after(Qt::Key_Home), QString());
    QCOMPARE(m_window->window().activeFocusItem()->property("cursorPosition").toInt(), 0);
}

const RegisteredTest<ListKeysTest> registered("ListKeys");

} // namespace Loadwick

#include "ListKeysTest.moc"
