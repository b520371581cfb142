#include "shell/RecentRepositories.h"

#include <QAccessible>
#include <QTest>

#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"

namespace Loadwick {
namespace {

const auto list = QStringLiteral("Scanned repositories");
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
        QVERIFY(m_window->isPressable(QStringLiteral("one")));
        press(QStringLiteral("one"));
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

    void theOneThatIsChosenKeepsItsResult()
    {
        scan("one");
        m_window->loadwick().content().setPageIndex(1);
        openList();
        m_window->press(Qt::Key_Down);
        m_window->press(Qt::Key_Return);
        QCOMPARE(m_window->loadwick().content().status(), ContentPresenter::Status::Complete);
        QCOMPARE(m_window->loadwick().content().pageIndex(), 0);
    }

    void onlyTheOneThatIsChosenHasAMark()
    {
        scan("one");
        scan("two");
        RecentRepositories recent(m_window->loadwick().model(), m_window->loadwick().content(),
                                  std::make_shared<SteppingDispatcher>());
        openList();
        QCOMPARE(markedRows(recent), QStringList{QStringLiteral("two")});
        QCOMPARE(marks().size(), 1);
        m_window->press(Qt::Key_Escape);
        m_window->choose(m_window->folder().path() / "one");
        openList();
        QCOMPARE(markedRows(recent), QStringList{QStringLiteral("one")});
        QCOMPARE(marks().size(), 1);
    }

    void theDialogChoosesAnewWhatIsChosen()
    {
        scan("one");
        m_window->choose(m_window->folder().path() / "one");
        QCOMPARE(m_window->loadwick().content().status(), ContentPresenter::Status::Idle);
    }

    void whereOneIsReadsFromLeftToRight()
    {
        scan("one");
        RecentRepositories recent(m_window->loadwick().model(), m_window->loadwick().content(),
                                  std::make_shared<SteppingDispatcher>());
        const QString detail = firstDetail(recent);
        const QString path = QString::fromStdString((m_window->folder().path() / "one").string());
        QVERIFY(detail.startsWith(QChar(0x200E)));
        QCOMPARE(detail.count(QChar(0x200E)), path.count(u'/') + 1);
        QCOMPARE(QString(detail).remove(QChar(0x200E)), path);
    }

    void oneThatIsGoneIsShownDisabled()
    {
        scan("one");
        scan("two");
        std::filesystem::remove_all(m_window->folder().path() / "one");
        openList();
        QVERIFY(m_window->shows(QStringLiteral("one")));
        QVERIFY(!m_window->isPressable(QStringLiteral("one")));
        press(QStringLiteral("one"));
        QVERIFY(m_window->loadwick().model().selection().get()->url ==
                m_window->folder().path() / "two");
    }

    void oneThatIsGoneSaysSo()
    {
        scan("one");
        scan("two"); // the sidebar names it
        openList();
        QVERIFY(!spokenDetail(QStringLiteral("one")).contains(notFound));
        m_window->press(Qt::Key_Escape);
        std::filesystem::remove_all(m_window->folder().path() / "one");
        openList();
        QVERIFY(spokenDetail(QStringLiteral("one")).startsWith(notFound));
        QVERIFY(spokenDetail(QStringLiteral("one")).endsWith(QStringLiteral("one")));
    }

    // Its words would be as hard to read as those that nobody can press.
    void whyOneCannotBeChosenIsNotFaint()
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

    void nothingIsSaidOfOneThatWasNotLookedFor()
    {
        scan("one");
        std::filesystem::remove_all(m_window->folder().path() / "one");
        RecentRepositories recent(m_window->loadwick().model(), m_window->loadwick().content(),
                                  std::make_shared<SteppingDispatcher>());
        QVERIFY(!firstDetail(recent).contains(notFound));
    }

    void oneThatIsBackCanBeChosen()
    {
        scan("one");
        scan("two"); // the sidebar names it
        std::filesystem::remove_all(m_window->folder().path() / "one");
        openList();
        m_window->press(Qt::Key_Escape);
        std::filesystem::create_directory(m_window->folder().path() / "one");
        openList();
        QVERIFY(m_window->isPressable(QStringLiteral("one")));
        QVERIFY(!spokenDetail(QStringLiteral("one")).contains(notFound));
    }

    void eachIsListedOnceTheLastScannedFirst()
    {
        for (const char *name : {"one", "two", "one"})
            scan(name);
        RecentRepositories recent(m_window->loadwick().model(), m_window->loadwick().content(),
                                  std::make_shared<SteppingDispatcher>());
        QCOMPARE(recent.count(), 2);
    }

    void theListIsNeverLong()
    {
        for (int number = 0; number < 12; ++number)
            scan(std::to_string(number));
        RecentRepositories recent(m_window->loadwick().model(), m_window->loadwick().content(),
                                  std::make_shared<SteppingDispatcher>());
        QCOMPARE(recent.count(), static_cast<int>(RecentRepositories::longestList));
    }

    void whileScanningNoneCanBeChosen()
    {
        scan("one");
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        QVERIFY(m_window->shows(list));
        QVERIFY(!m_window->isPressable(list));
    }

    void noneIsChosenBeforeItWasLookedFor()
    {
        scan("one");
        RecentRepositories recent(m_window->loadwick().model(), m_window->loadwick().content(),
                                  std::make_shared<SteppingDispatcher>());
        recent.choose(0);
        QCOMPARE(m_window->loadwick().content().status(), ContentPresenter::Status::Complete);
        recent.choose(-1);
        recent.choose(1);
    }

    void clearingTheHistoryClearsTheList()
    {
        scan("one");
        m_window->loadwick().model().clearHistory();
        QVERIFY(!m_window->shows(list));
    }

private:
    void scan(const std::string &name)
    {
        std::filesystem::create_directory(m_window->folder().path() / name);
        m_window->choose(m_window->folder().path() / name);
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        m_window->finishScan();
    }

    void openList()
    {
        press(list);
        m_window->finishScan(); // what looks for the folders
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

    void press(const QString &name)
    {
        QAccessibleInterface *button = m_window->find(name);
        QVERIFY(button != nullptr && button->actionInterface() != nullptr);
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }

    std::unique_ptr<WindowFixture> m_window;
};

const RegisteredTest<RecentRepositoriesTest> registered("RecentRepositories");

} // namespace Loadwick

#include "RecentRepositoriesTest.moc"
