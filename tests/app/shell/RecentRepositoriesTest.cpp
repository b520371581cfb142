#include "shell/RecentRepositories.h"

#include <algorithm>

#include <QAccessible>
#include <QTest>

#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"

namespace Loadwick {
namespace {

const auto list = QStringLiteral("Scanned repositories");
/// What a screen reader says of a repository; every scan measures the same.
QString spoken(const char *name)
{
    return QString::fromLatin1(name) + QStringLiteral(", 27,654 tokens, Lean");
}

const auto notFound = QStringLiteral("Folder not found: ");

} // namespace

class RecentRepositoriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = std::make_unique<WindowFixture>(); }
    void cleanup() { m_window.reset(); }

    void withoutAHistoryThereIsNoList() { QVERIFY(!m_window->shows(list)); }

    void aScannedRepositoryCanBeChosenAgain()
    {
        scan("one");
        scan("two");
        openList();
        QVERIFY(m_window->isPressable(spoken("one")));
        m_window->pressButton(spoken("one"));
        QVERIFY(m_window->loadwick().model().selection().get()->url ==
                m_window->folder().path() / "one");
        QCOMPARE(m_window->loadwick().content().status(), ContentPresenter::Status::Idle);
        QCOMPARE(m_window->chooser().openCount, 2);
    }

    void choosingOnAnotherPageSwitchesToTheOverview()
    {
        scan("one");
        m_window->loadwick().content().setPageIndex(1);
        openList();
        m_window->press(Qt::Key_Down);
        m_window->press(Qt::Key_Return);
        QCOMPARE(m_window->loadwick().content().pageIndex(), 0);
    }

    void choosingTheCurrentOneKeepsItsResult()
    {
        scan("one");
        m_window->loadwick().content().setPageIndex(1);
        openList();
        m_window->press(Qt::Key_Down);
        m_window->press(Qt::Key_Return);
        QCOMPARE(m_window->loadwick().content().status(), ContentPresenter::Status::Complete);
        QCOMPARE(m_window->loadwick().content().pageIndex(), 0);
    }

    void onlyTheCurrentOneHasAMark()
    {
        scan("one");
        scan("two");
        const auto recent = uncheckedList();
        openList();
        QCOMPARE(markedRows(*recent), QStringList{QStringLiteral("two")});
        QCOMPARE(marks().size(), 1);
        m_window->press(Qt::Key_Escape);
        m_window->choose(m_window->folder().path() / "one");
        openList();
        QCOMPARE(markedRows(*recent), QStringList{QStringLiteral("one")});
        QCOMPARE(marks().size(), 1);
    }

    void choosingTheCurrentOneInTheDialogDiscardsItsResult()
    {
        scan("one");
        m_window->choose(m_window->folder().path() / "one");
        QCOMPARE(m_window->loadwick().content().status(), ContentPresenter::Status::Idle);
    }

    void pathsReadFromLeftToRight()
    {
        scan("one");
        const auto recent = uncheckedList();
        const QString detail = firstDetail(*recent);
        const QString path = QString::fromStdString((m_window->folder().path() / "one").string());
        QVERIFY(detail.startsWith(QChar(0x200E)));
        QCOMPARE(detail.count(QChar(0x200E)), path.count(u'/') + 1);
        QCOMPARE(QString(detail).remove(QChar(0x200E)), path);
    }

    void pathsAreSpokenWithoutMarks()
    {
        scan("one");
        scan("two"); // the sidebar names it
        openList();
        QCOMPARE(spokenDetail(spoken("one")),
                 QString::fromStdString((m_window->folder().path() / "one").string()));
    }

    void aMissingFolderIsDisabled()
    {
        scan("one");
        scan("two");
        std::filesystem::remove_all(m_window->folder().path() / "one");
        openList();
        QVERIFY(m_window->shows(spoken("one")));
        QVERIFY(!m_window->isPressable(spoken("one")));
        m_window->pressButton(spoken("one"));
        QVERIFY(m_window->loadwick().model().selection().get()->url ==
                m_window->folder().path() / "two");
    }

    void aMissingFolderSaysSo()
    {
        scan("one");
        scan("two"); // the sidebar names it
        openList();
        QVERIFY(!spokenDetail(spoken("one")).contains(notFound));
        m_window->press(Qt::Key_Escape);
        std::filesystem::remove_all(m_window->folder().path() / "one");
        openList();
        QVERIFY(spokenDetail(spoken("one")).startsWith(notFound));
        QVERIFY(spokenDetail(spoken("one")).endsWith(QStringLiteral("one")));
    }

    void theDetailOfAMissingFolderStaysReadable()
    {
        scan("one");
        std::filesystem::remove_all(m_window->folder().path() / "one");
        openList();
        QList<QQuickItem *> lines = shownItems(*m_window->loadwick().window().contentItem());
        lines.removeIf([](const QQuickItem *item) {
            return !item->property("text").toString().startsWith(notFound);
        });
        QCOMPARE(lines.size(), 1);
        for (const QQuickItem *item = lines.constFirst(); item != nullptr;
             item = item->parentItem())
            QCOMPARE(item->opacity(), 1.0);
    }

    void saysNothingAboutAnUncheckedFolder()
    {
        scan("one");
        std::filesystem::remove_all(m_window->folder().path() / "one");
        const auto recent = uncheckedList();
        QVERIFY(!firstDetail(*recent).contains(notFound));
    }

    void aRestoredFolderCanBeChosen()
    {
        scan("one");
        scan("two"); // the sidebar names it
        std::filesystem::remove_all(m_window->folder().path() / "one");
        openList();
        m_window->press(Qt::Key_Escape);
        std::filesystem::create_directory(m_window->folder().path() / "one");
        openList();
        QVERIFY(m_window->isPressable(spoken("one")));
        QVERIFY(!spokenDetail(spoken("one")).contains(notFound));
    }

    void listsEachRepositoryOnce()
    {
        for (const char *name : {"one", "two", "one"})
            scan(name);
        const auto recent = uncheckedList();
        QCOMPARE(recent->count(), 2);
    }

    void listsEveryRepository()
    {
        for (int number = 0; number < 12; ++number)
            scan(std::to_string(number));
        const auto recent = uncheckedList();
        QCOMPARE(recent->count(), 12);
    }

    void whileScanningNoneCanBeChosen()
    {
        scan("one");
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        QVERIFY(m_window->shows(list));
        QVERIFY(!m_window->isPressable(list));
    }

    void anUncheckedFolderCannotBeChosen()
    {
        scan("one");
        const auto recent = uncheckedList();
        recent->choose(0);
        QCOMPARE(m_window->loadwick().content().status(), ContentPresenter::Status::Complete);
        recent->choose(-1);
        recent->choose(1);
    }

    void clearingTheHistoryClearsTheList()
    {
        scan("one");
        m_window->loadwick().model().clearHistory();
        m_window->finishClearing();
        QVERIFY(!m_window->shows(list));
    }

    void homeAndEndGoToTheEndsOfTheMenu_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("row");
        QTest::newRow("home") << Qt::Key_Home << 1;
        QTest::newRow("page up") << Qt::Key_PageUp << 1;
        QTest::newRow("end") << Qt::Key_End << 2;
        QTest::newRow("page down") << Qt::Key_PageDown << 2;
    }

    void homeAndEndGoToTheEndsOfTheMenu()
    {
        QFETCH(const Qt::Key, key);
        QFETCH(const int, row);
        for (const char *name : {"one", "two", "three", "four"})
            scan(name);
        const auto recent = uncheckedList();
        for (const int end : {0, 3})
            std::filesystem::remove_all(m_window->folder().path() /
                                        titleOf(*recent, end).toStdString());
        openList();
        m_window->press(key);
        m_window->press(Qt::Key_Return);
        QCOMPARE(m_window->loadwick().model().selection().get()->path(),
                 m_window->folder().path() / titleOf(*recent, row).toStdString());
    }

    void theButtonHasAToolTipUntilTheMenuWasOpen()
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
        m_window->finishScan(); // runs the pending checks of the folders
        m_window->press(Qt::Key_Down);
        m_window->press(Qt::Key_Return);
        QTest::qWait(longerThanTheDelay); // the pointer is still there
        QVERIFY(!isExplained());
        QTest::mouseMove(&window, QPoint(1, 1));
        QTest::mouseMove(&window, button);
        QTRY_VERIFY(isExplained());
    }

private:
    /// Another list over the same model, with its folders still unchecked.
    [[nodiscard]] std::unique_ptr<RecentRepositories> uncheckedList()
    {
        return std::make_unique<RecentRepositories>(m_window->loadwick().model(),
                                                    m_window->loadwick().content(),
                                                    std::make_shared<SteppingDispatcher>());
    }

    void scan(const std::string &name)
    {
        std::filesystem::create_directory(m_window->folder().path() / name);
        m_window->scan(m_window->folder().path() / name);
    }

    void openList()
    {
        m_window->pressButton(list);
        m_window->finishScan();                           // runs the pending checks of the folders
        (void)m_window->loadwick().window().grabWindow(); // creates the rows
    }

    [[nodiscard]] static QStringList markedRows(RecentRepositories &recent)
    {
        const QAbstractItemModel &rows = *recent.rows();
        const QHash<int, QByteArray> roles = rows.roleNames();
        QStringList marked;
        for (int row = 0; row < rows.rowCount(); ++row)
            if (rows.index(row, 0).data(roles.key("isCurrent")).toBool())
                marked.append(rows.index(row, 0).data(roles.key("title")).toString());
        return marked;
    }

    [[nodiscard]] static QString firstDetail(RecentRepositories &recent)
    {
        const QAbstractItemModel &rows = *recent.rows();
        return rows.index(0, 0).data(rows.roleNames().key("detail")).toString();
    }

    [[nodiscard]] QString spokenDetail(const QString &name) const
    {
        QAccessibleInterface *row = m_window->find(name);
        return row == nullptr ? QString() : row->text(QAccessible::Description);
    }

    [[nodiscard]] QList<QQuickItem *> marks() const
    {
        return visibleItems(m_window->loadwick().window().contentItem(), QStringLiteral("mark"));
    }

    [[nodiscard]] QPoint middleOf(const QString &name) const
    {
        const auto *item = qobject_cast<QQuickItem *>(m_window->find(name)->object());
        return item->mapRectToScene(item->boundingRect()).center().toPoint();
    }

    [[nodiscard]] bool isExplained() const
    {
        const QList<QQuickItem *> items = shownItems(*m_window->loadwick().window().contentItem());
        return std::any_of(items.begin(), items.end(), [](const QQuickItem *item) {
            return item->property("text").toString() ==
                   QStringLiteral("Choose a repository that was scanned before");
        });
    }

    [[nodiscard]] static QString titleOf(RecentRepositories &recent, int row)
    {
        const QAbstractItemModel &rows = *recent.rows();
        return rows.index(row, 0).data(rows.roleNames().key("title")).toString();
    }

    std::unique_ptr<WindowFixture> m_window;
};

const RegisteredTest<RecentRepositoriesTest> registered("RecentRepositories");

} // namespace Loadwick

#include "RecentRepositoriesTest.moc"
