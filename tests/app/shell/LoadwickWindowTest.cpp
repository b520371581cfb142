#include "shell/LoadwickWindow.h"

#include <cmath>
#include <string>

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QQuickItem>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include "overview/OverviewPresenter.h"
#include "shell/ContentPresenter.h"
#include "support/FakeAppearanceSource.h"
#include "support/TestRegistry.h"
#include "support/WindowFixture.h"

namespace Loadwick {

class LoadwickWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = std::make_unique<WindowFixture>(); }
    void cleanup() { m_window.reset(); }

    void hasItsTitleAndSizes()
    {
        QQuickWindow &window = m_window->loadwick().window();
        QCOMPARE(window.title(), QStringLiteral("Loadwick"));
        QCOMPARE(window.size(), QSize(1180, 780));
        QCOMPARE(window.minimumSize(), QSize(960, 640));
    }

    void opensAsLargeAsItsScreenAllows_data()
    {
        QTest::addColumn<QSize>("room");
        QTest::addColumn<QSize>("size");
        QTest::newRow("a large screen") << QSize(2560, 1400) << QSize(1180, 780);
        QTest::newRow("exactly") << QSize(1180, 780) << QSize(1180, 780);
        QTest::newRow("a short screen") << QSize(1366, 700) << QSize(1180, 700);
        QTest::newRow("a narrow screen") << QSize(1080, 1880) << QSize(1080, 780);
        QTest::newRow("smaller than the minimum") << QSize(800, 560) << QSize(960, 640);
    }

    void opensAsLargeAsItsScreenAllows()
    {
        QFETCH(const QSize, room);
        QFETCH(const QSize, size);
        QCOMPARE(LoadwickWindow::firstSize(QSize(1180, 780), QSize(960, 640), room), size);
    }

    void leavesRoomForItsTitleBar()
    {
        QQuickWindow &window = m_window->loadwick().window();
        const QSize room = window.screen()->availableSize();
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support propagateSizeHints()");
        window.setMinimumSize(QSize(100, 100));
        window.resize(2 * room);
        m_window->loadwick().show();
        QCOMPARE(window.width(), room.width());
        QVERIFY(window.height() < room.height());
    }

    void withoutARepositoryAsksForOneAndCannotScan()
    {
        QVERIFY(shows("No repository selected"));
        QVERIFY(shows("Choose a local repository to begin one scan."));
        QVERIFY(shows("Ready to scan"));
        QVERIFY(shows("Start a context scan"));
        QVERIFY(shows("Choose a local repository, then run one Claude Code probe."));
        QVERIFY(m_window->isPressable(QStringLiteral("Choose Repository…")));
        QVERIFY(shows("Scan"));
        QVERIFY(!m_window->isPressable(QStringLiteral("Scan")));
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        m_window->finishScan();
        QVERIFY(m_window->probe().runs().empty());
    }

    void saysWhatAScanCostsBeforeTheFirstOne()
    {
        const QString disclosure = m_window->loadwick().content().allowanceDisclosure();
        QVERIFY(m_window->shows(disclosure));
        QAccessibleInterface *scan = m_window->find(QStringLiteral("Scan"));
        QVERIFY(scan != nullptr);
        QCOMPARE(scan->text(QAccessible::Description), disclosure);
    }

    void controlOChoosesAndControlRScans()
    {
        m_window->choose(m_window->folder().path());
        QVERIFY(m_window->isPressable(QStringLiteral("Scan Again")));
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        QVERIFY(shows("Scanning"));
        m_window->finishScan();
        QCOMPARE(m_window->probe().runs().size(), std::size_t(1));
        QTRY_VERIFY(shows("27,654"));
        QVERIFY(shows("tokens"));
        QVERIFY(shows("Lean startup context"));
        QVERIFY(shows("Authoritative · measured by Claude"));
        QVERIFY(shows("Scan complete"));
    }

    void whileScanningControlODoesNothing()
    {
        m_window->choose(m_window->folder().path());
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        m_window->press(Qt::Key_O, Qt::ControlModifier);
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(m_window->chooser().openCount, 1);
        QVERIFY(shows("Scanning…"));
        QVERIFY(!m_window->isPressable(QStringLiteral("Scanning…")));
        QVERIFY(!m_window->isPressable(QStringLiteral("Choose Repository…")));
        QVERIFY(shows("Scanning repository"));
        QVERIFY(shows("Running for less than a minute"));
    }

    void theElapsedTimeIsBelowTheLoadingStateAndNoPartOfIt()
    {
        m_window->choose(m_window->folder().path());
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        const auto item = [this](const char *words) {
            return qobject_cast<QQuickItem *>(m_window->find(QString::fromUtf8(words))->object());
        };
        const QQuickItem *elapsed = item("Running for less than a minute");
        const QQuickItem *group = item("Scanning repository")->parentItem();
        QVERIFY(!group->isAncestorOf(elapsed));
        QTRY_VERIFY(elapsed->mapToScene({}).y() > group->mapToScene({0, group->height()}).y());
    }

    void aFailedScanShowsHeadlineAndDetail()
    {
        m_window->probe().answer = []() -> ProbeResult {
            throw ProbeError::sessionFailed("<b>Credit balance</b> is too low");
        };
        scan();
        QTRY_VERIFY(shows("Scan failed"));
        QVERIFY(shows("The probe session reported an error."));
        QVERIFY(shows("<b>Credit balance</b> is too low"));
    }

    void thePagesStayNavigableWhileScanning()
    {
        m_window->choose(m_window->folder().path());
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        press("Trends");
        QVERIFY(shows("Startup context over time, against the Lean, Heavy and Excessive bands."));
        press("Compare");
        QVERIFY(shows("No recorded scans yet"));
        press("Overview");
        QVERIFY(shows("Scanning repository"));
    }

    void choosingOnAnotherPageSwitchesToTheOverview()
    {
        for (const char *page : {"Trends", "Compare"}) {
            press(page);
            QVERIFY(!shows("Start a context scan"));
            m_window->choose(m_window->folder().path());
            QVERIFY(shows("Start a context scan"));
        }
    }

    void thePagesAreTheItemsOfAList()
    {
        QAccessible::setActive(true);
        QAccessibleInterface *row = m_window->find(QStringLiteral("Compare"));
        QVERIFY(row != nullptr);
        QCOMPARE(row->role(), QAccessible::ListItem);
        QVERIFY(row->state().selectable);
        QVERIFY(!row->state().selected);
    }

    void theArrowKeysMoveThroughThePages()
    {
        m_window->press(Qt::Key_Tab);
        m_window->press(Qt::Key_Down);
        QCOMPARE(m_window->loadwick().content().pageIndex(), 1);
        m_window->press(Qt::Key_Down);
        m_window->press(Qt::Key_Down);
        QCOMPARE(m_window->loadwick().content().pageIndex(), 2);
        m_window->press(Qt::Key_Up);
        QCOMPARE(m_window->loadwick().content().pageIndex(), 1);
        m_window->choose(m_window->folder().path());
        QCOMPARE(m_window->loadwick().content().pageIndex(), 0);
    }

    void anyFolderNameCanBeScannedAndRecorded_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("markup") << QByteArray("<img src=x>");
        QTest::newRow("line feed") << QByteArray("two\nlines");
        QTest::newRow("not UTF-8") << QByteArray("caf\xE9");
        QTest::newRow("255 bytes") << QByteArray(255, 'n');
    }

    void anyFolderNameCanBeScannedAndRecorded()
    {
        QFETCH(const QByteArray, name);
        const auto folder = m_window->folder().path() / name.toStdString();
        std::filesystem::create_directory(folder);
        m_window->scan(folder);
        QTRY_VERIFY(shows("Scan complete"));
        QVERIFY(m_window->probe().runs().front() == folder);
        QCOMPARE(m_window->loadwick().model().history().get().size(), std::size_t(1));
        QVERIFY(m_window->shows(QString::fromUtf8(name)));
        QVERIFY(!m_window->loadwick().window().grabWindow().isNull());
    }

    // Each warning that a layout prints fails the test.
    void everyPageSettlesAtEverySize()
    {
        scan();
        QQuickWindow &window = m_window->loadwick().window();
        for (const QSize size : {QSize(1180, 780), QSize(960, 640), QSize(2560, 1440)}) {
            window.resize(size);
            for (int page = 0; page < 3; ++page) {
                m_window->loadwick().content().setPageIndex(page);
                QVERIFY(!window.grabWindow().isNull());
            }
        }
    }

    void theTreemapKeepsItsShapeAtEverySize()
    {
        m_window->scanner().answer = [] {
            return InstructionFileSet{
                .repositoryFiles = {InstructionFileEstimate::fromPath("/one/CLAUDE.md", 4'000)},
                .inheritedFiles = {},
                .personalFiles = {InstructionFileEstimate::fromPath("/two/CLAUDE.md", 9'000)},
                .unreadablePaths = {}};
        };
        scan();
        QQuickWindow &window = m_window->loadwick().window();
        for (const QSize size :
             {QSize(960, 640), QSize(1180, 780), QSize(2560, 1440), QSize(960, 640)}) {
            window.resize(size);
            (void)window.grabWindow();
            const auto *map = window.findChild<QQuickItem *>(QStringLiteral("map"));
            QVERIFY(map != nullptr && map->width() > 390);
            QTRY_VERIFY2(
                std::abs(map->height() - map->width() * 9 / 16) <= 1,
                qPrintable(QStringLiteral("%1 x %2").arg(map->width()).arg(map->height())));
        }
    }

    void followsTheGivenAppearance()
    {
        FakeAppearanceSource *desktop = nullptr;
        LoadwickWindow given(
            {.scan = {.probeRunner = std::make_shared<FakeProbe>(),
                      .instructionScanner = std::make_shared<FakeInstructionScanner>()},
             .folderChooser = std::make_unique<FakeFolderChooser>(),
             .appearance = [&desktop](const auto &) {
                 auto made = std::make_unique<FakeAppearanceSource>();
                 desktop = made.get();
                 return made;
             }});
        QVERIFY(given.window().color().lightness() > 128);
        desktop->setPreferences({.dark = true});
        QVERIFY(given.window().color().lightness() < 128);
        desktop->setPreferences({.dark = false});
        QVERIFY(given.window().color().lightness() > 128);
    }

    void copySummaryIsAButton()
    {
        scan();
        QTRY_VERIFY(m_window->isPressable(QStringLiteral("Copy Summary")));
        press("Copy Summary");
        QVERIFY(m_window->loadwick().overview().summary().startsWith(QStringLiteral("Repository")));
    }

    void copySummaryBrieflyConfirms()
    {
        scan();
        QTRY_VERIFY(m_window->isPressable(QStringLiteral("Copy Summary")));
        QVERIFY(!shows("Copied"));
        press("Copy Summary");
        QVERIFY(shows("Copied"));
        QVERIFY(m_window->isPressable(QStringLiteral("Copy Summary")));
        QTRY_VERIFY(!shows("Copied"));
    }

    void aTextThatCanBeSelectedHasCopyInItsContextMenu()
    {
        m_window->choose(m_window->folder().path());
        const QString path = m_window->loadwick().content().repositoryDetail();
        QQuickWindow &window = m_window->loadwick().window();
        (void)window.grabWindow();
        auto *text = dynamic_cast<QQuickItem *>(m_window->find(path)->object());
        QVERIFY(text != nullptr);
        QGuiApplication::clipboard()->clear();
        QTest::mouseClick(&window, Qt::RightButton, {}, text->mapToScene(QPointF(5, 5)).toPoint());
        QTRY_VERIFY(shows("Copy"));
        m_window->press(Qt::Key_Down);
        m_window->press(Qt::Key_Return);
        QCOMPARE(QGuiApplication::clipboard()->text(), path);
        QTRY_VERIFY(!shows("Copy"));
    }

    void theScanButtonIsNotProminentBesideAResult()
    {
        m_window->choose(m_window->folder().path());
        QVERIFY(
            m_window->find(QStringLiteral("Scan Again"))->object()->property("filled").toBool());
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        m_window->finishScan();
        QTRY_VERIFY(shows("Scan complete"));
        QAccessibleInterface *scan = m_window->find(QStringLiteral("Scan Again"));
        QVERIFY(!scan->object()->property("filled").toBool());
        QVERIFY(m_window->isPressable(QStringLiteral("Scan Again")));
    }

    void theOtherPagesShowARecordedScan()
    {
        scan();
        QTRY_VERIFY(shows("Scan complete"));
        press("Trends");
        QVERIFY(shows("One scan recorded"));
        press("Compare");
        QVERIFY(shows("Only one repository recorded"));
        scan();
        press("Trends");
        QVERIFY(shows("Trends"));
        QVERIFY(!shows("One scan recorded"));
    }

    void theWeeklyCardStaysWithoutALog()
    {
        scan();
        QTRY_VERIFY(shows("Weekly usage"));
        QVERIFY(shows("No weekly KPI line is available locally."));
        QVERIFY(!shows("Tokens/PR"));
    }

    void theWeeklyLogIsReadAtTheStart()
    {
        m_window->folder().write("weekly.jsonl", "{\"median_tokens_per_session\":27510462,"
                                                 "\"tokens_per_pr\":37681167}\n");
        scan();
        QTRY_VERIFY(shows("27,510,462"));
        QVERIFY(shows("+0 versus target"));
        QVERIFY(shows("-1 versus target"));
        QVERIFY(shows("Window: unknown – unknown"));
        QVERIFY(!shows("No weekly KPI line is available locally."));
    }

    void theSessionDetailsOpen()
    {
        scan();
        QTRY_VERIFY(shows("Session details"));
        QVERIFY(!shows("12.5 seconds"));
        press("Session details");
        QTRY_VERIFY(shows("12.5 seconds"));
        QVERIFY(shows("Claude executable"));
        QVERIFY(shows("Total: authoritative — reported by Claude (source: session transcript: "
                      "first assistant message usage)."));
    }

    void closingDuringAScanDropsItsOutcome()
    {
        m_window->choose(m_window->folder().path());
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        m_window->loadwick().window().close();
        m_window->destroy();
        m_window->finishScan();
    }

private:
    [[nodiscard]] bool shows(const char *name) const
    {
        return m_window->shows(QString::fromUtf8(name));
    }

    void scan() { m_window->scan(m_window->folder().path()); }
    void press(const char *name) { m_window->pressButton(QString::fromUtf8(name)); }

    std::unique_ptr<WindowFixture> m_window;
};

const RegisteredTest<LoadwickWindowTest> registered("LoadwickWindow");

} // namespace Loadwick

#include "LoadwickWindowTest.moc"
