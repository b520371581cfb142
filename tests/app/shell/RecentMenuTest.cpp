#include <algorithm>
#include <filesystem>
#include <memory>

#include <QAccessible>
#include <QTest>

#include "shell/RecentRepositories.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"

namespace Loadwick {

/// The menu of four scanned repositories, of which neither the first nor the last can be chosen.
class RecentMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = std::make_unique<WindowFixture>(); }
    void cleanup() { m_window.reset(); }
    void theKeysOfAPageGoToItsEnds_data();
    void theKeysOfAPageGoToItsEnds();
    void itsButtonIsExplainedUntilItWasOpen();

private:
    [[nodiscard]] QPoint middleOf(const QString &name) const;
    [[nodiscard]] bool isExplained() const;
    void scan(const char *name);
    void open();
    [[nodiscard]] static QString titleOf(RecentRepositories &recent, int row);

    std::unique_ptr<WindowFixture> m_window;
};

void RecentMenuTest::scan(const char *name)
{
    std::filesystem::create_directory(m_window->folder().path() / name);
    m_window->choose(m_window->folder().path() / name);
    m_window->press(Qt::Key_R, Qt::ControlModifier);
    m_window->finishScan();
}

void RecentMenuTest::open()
{
    QAccessibleInterface *button = m_window->find(QStringLiteral("Scanned repositories"));
    QVERIFY(button != nullptr);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    m_window->finishScan(); // what looks for the folders
}

QString RecentMenuTest::titleOf(RecentRepositories &recent, int row)
{
    const QAbstractItemModel &rows = *recent.rows();
    return rows.index(row, 0).data(rows.roleNames().key("title")).toString();
}

void RecentMenuTest::theKeysOfAPageGoToItsEnds_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("row");
    QTest::newRow("home") << Qt::Key_Home << 1;
    QTest::newRow("page up") << Qt::Key_PageUp << 1;
    QTest::newRow("end") << Qt::Key_End << 2;
    QTest::newRow("page down") << Qt::Key_PageDown << 2;
}

void RecentMenuTest::theKeysOfAPageGoToItsEnds()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const int, row);
    for (const char *name : {"one", "two", "three", "four"})
        scan(name);
    RecentRepositories recent(m_window->loadwick().model(), m_window->loadwick().content(),
                              std::make_shared<SteppingDispatcher>());
    for (const int end : {0, 3})
        std::filesystem::remove_all(m_window->folder().path() / titleOf(recent, end).toStdString());
    open();
    m_window->press(key);
    m_window->press(Qt::Key_Return);
    QCOMPARE(m_window->loadwick().model().selection().get()->path(),
             m_window->folder().path() / titleOf(recent, row).toStdString());
}

QPoint RecentMenuTest::middleOf(const QString &name) const
{
    const auto *item = qobject_cast<QQuickItem *>(m_window->find(name)->object());
    return item->mapRectToScene(item->boundingRect()).center().toPoint();
}

bool RecentMenuTest::isExplained() const
{
    const QList<QQuickItem *> items = shownItems(*m_window->loadwick().window().contentItem());
    return std::any_of(items.begin(), items.end(), [](const QQuickItem *item) {
        return item->property("text").toString() ==
               QStringLiteral("Choose a repository that was scanned before");
    });
}

void RecentMenuTest::itsButtonIsExplainedUntilItWasOpen()
{
    constexpr int longerThanTheDelay = 1000; // milliseconds
    QQuickWindow &window = m_window->loadwick().window();
    scan("one");
    scan("two");
    const QPoint button = middleOf(QStringLiteral("Scanned repositories"));
    QTest::mouseMove(&window, button);
    QTRY_VERIFY(isExplained());
    QTest::mouseClick(&window, Qt::LeftButton, {}, button);
    QVERIFY(!isExplained());
    m_window->finishScan(); // what looks for the folders
    m_window->press(Qt::Key_Down);
    m_window->press(Qt::Key_Return);
    QTest::qWait(longerThanTheDelay); // the pointer is still there
    QVERIFY(!isExplained());
    QTest::mouseMove(&window, QPoint(1, 1));
    QTest::mouseMove(&window, button);
    QTRY_VERIFY(isExplained());
}

const RegisteredTest<RecentMenuTest> registered("RecentMenu");

} // namespace Loadwick

#include "RecentMenuTest.moc"
