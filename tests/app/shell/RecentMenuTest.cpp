// The list of repositories under the keys, in the real window.
#include <QAccessible>
#include <QQuickItem>
#include <QTest>

#include "samples/SampleHistories.h"
#include "shell/RecentRepositories.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"

namespace Loadwick {

class RecentMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = std::make_unique<WindowFixture>(); }
    void cleanup() { m_window.reset(); }

    void typingNarrowsTheList_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("found");
        QTest::newRow("part of a name") << "Sho"
                                        << "webshop";
        QTest::newRow("a folder above") << "ANDS/w"
                                        << "wiki";
        QTest::newRow("blanks around it") << " iki "
                                          << "wiki";
    }

    void typingNarrowsTheList()
    {
        QFETCH(const QString, typed);
        QFETCH(const QString, found);
        std::filesystem::create_directory(m_window->folder().path() / "islands");
        for (const char *name : {"webshop", "islands/wiki", "docs"})
            scan(name);
        openList();
        type(typed);
        m_window->press(Qt::Key_Return);
        QCOMPARE(m_window->loadwick().content().repositoryName(), found);
    }

    void typingInTheListGoesOnInTheFilter()
    {
        for (const char *name : {"webshop", "wiki", "docs"})
            scan(name);
        openList();
        m_window->press(Qt::Key_Down);
        type(QStringLiteral("iki"));
        m_window->press(Qt::Key_Down);
        m_window->press(Qt::Key_Return);
        QCOMPARE(m_window->loadwick().content().repositoryName(), QStringLiteral("wiki"));
        openList();
        QCOMPARE(shownRows().size(), 3); // as a whole again
    }

    void aClickOnTheButtonClosesTheList()
    {
        scan("one");
        openList();
        QQuickWindow &window = m_window->loadwick().window();
        const auto *button = qobject_cast<QQuickItem *>(
            m_window->find(QStringLiteral("Scanned repositories"))->object());
        QTest::mouseClick(&window, Qt::LeftButton, {},
                          button->mapToScene(button->boundingRect().center()).toPoint());
        QVERIFY(settles(window));
        QVERIFY(!button->property("isOpen").toBool());
        QVERIFY(button->hasActiveFocus());
    }

    void saysThatNothingMatches()
    {
        scan("one");
        openList();
        type(QStringLiteral("zzz"));
        QVERIFY(m_window->shows(QStringLiteral("No repository matches.")));
        m_window->press(Qt::Key_Down);
        m_window->press(Qt::Key_Return);
        QCOMPARE(m_window->loadwick().content().status(), ContentPresenter::Status::Complete);
    }

    void aFolderDeletedWhileTheListShowsIsSelectedAndThenGone()
    {
        for (const char *name : {"one", "two"})
            scan(name);
        openList();
        std::filesystem::remove_all(m_window->folder().path() / "one");
        type(QStringLiteral("one"));
        m_window->press(Qt::Key_Return);
        ContentPresenter &content = m_window->loadwick().content();
        QCOMPARE(content.repositoryName(), QStringLiteral("one"));
        QCOMPARE(content.status(), ContentPresenter::Status::Idle);
        openList();
        const QAccessibleInterface *row =
            m_window->find(QStringLiteral("one, 27,654 tokens, Lean"));
        QVERIFY(
            row->text(QAccessible::Description).startsWith(QStringLiteral("Folder not found: ")));
        QVERIFY(row->state().disabled);
    }

    void saysTotalsAndMatchesInTheLocale_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("all");
        QTest::addColumn<QString>("matches");
        QTest::newRow("en_US") << "one, 27,654 tokens, Lean"
                               << "2 repositories"
                               << "1 of 2 repositories";
        QTest::newRow("de_DE") << "one, 27.654 tokens, Lean"
                               << "2 repositories"
                               << "1 of 2 repositories";
        QTest::newRow("hi_IN") << "one, 27,654 tokens, Lean"
                               << "2 repositories"
                               << "1 of 2 repositories";
        QTest::newRow("ar_EG") << QStringLiteral("one, ٢٧٬٦٥٤ tokens, Lean")
                               << QStringLiteral("٢ repositories")
                               << QStringLiteral("١ of ٢ repositories");
    }

    void saysTotalsAndMatchesInTheLocale()
    {
        QFETCH(const QString, words);
        QFETCH(const QString, all);
        QFETCH(const QString, matches);
        scan("two");
        scan("one");
        RecentRepositories recent(
            m_window->loadwick().model(), m_window->loadwick().content(),
            std::make_shared<SteppingDispatcher>(),
            TextLocale::fromEnvironment({{"LC_ALL", QTest::currentDataTag()}}));
        QCOMPARE(recent.matchWords(), all);
        recent.setFilter(QStringLiteral("/one"));
        QCOMPARE(recent.rows()->text(0, QStringLiteral("words")), words);
        QCOMPARE(recent.matchWords(), matches);
        QCOMPARE(recent.count(), 2);
    }

    void aLongListStaysInTheWindowAndCreatesOnlyWhatShows()
    {
        QQuickWindow &window = m_window->loadwick().window();
        window.resize(960, 640);
        std::vector<RecordedScan> scans = SampleHistories::ofSize(200, 200, 1);
        for (RecordedScan &scan : scans) {
            scan.repositoryPath = (m_window->folder().path() / scan.repositoryName).string();
            std::filesystem::create_directories(scan.repositoryPath);
        }
        m_window->loadwick().model().history().set(std::move(scans));
        openList();
        (void)window.grabWindow();
        const QList<QQuickItem *> rows = shownRows();
        QVERIFY(rows.size() > 5 && rows.size() < 20);
        QVERIFY(rows[0]->width() > 300);
        m_window->press(Qt::Key_End);
        (void)window.grabWindow();
        const QQuickItem *last = window.activeFocusItem();
        QVERIFY(last->mapRectToScene(last->boundingRect()).bottom() <= window.height());
    }

private:
    void scan(const std::string &name)
    {
        std::filesystem::create_directory(m_window->folder().path() / name);
        m_window->scan(m_window->folder().path() / name);
    }

    void openList()
    {
        m_window->pressButton(QStringLiteral("Scanned repositories"));
        m_window->finishScan();                           // runs the pending checks of the folders
        (void)m_window->loadwick().window().grabWindow(); // creates the rows
    }

    void type(const QString &text)
    {
        for (const QChar character : text)
            QTest::keyClick(&m_window->loadwick().window(), character.toLatin1());
    }

    [[nodiscard]] QList<QQuickItem *> shownRows() const
    {
        QList<QQuickItem *> items = shownItems(*m_window->loadwick().window().contentItem());
        items.removeIf([](const QQuickItem *item) { return !item->inherits("QQuickMenuItem"); });
        return items;
    }

    std::unique_ptr<WindowFixture> m_window;
};

const RegisteredTest<RecentMenuTest> registered("RecentMenu");

} // namespace Loadwick

#include "RecentMenuTest.moc"
