#include "trends/TrendsPresenter.h"

#include <QAccessible>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

#include "samples/SampleReport.h"
#include "shell/AppPage.h"
#include "shell/ContentPresenter.h"
#include "support/RecordedScanBuilder.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"

namespace Loadwick {

/// The Trends page in the real window.
class TrendsViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<WindowFixture>();
        m_window->loadwick().content().setPageIndex(static_cast<int>(AppPage::trends));
    }
    void cleanup() { m_window.reset(); }

    void anEmptyHistoryShowsOnlyWhatIsMissing()
    {
        QVERIFY(shows("Scans are recorded locally as you run them. Run one scan, then another, and "
                      "the trend appears here."));
        QVERIFY(!shows("Startup tokens per scan"));
        QVERIFY(!shows("Where this repository landed"));
        QVERIFY(shows("Previous runs"));
        QVERIFY(shows("0 scans across 0 repositories, stored on this Mac. Totals only — no "
                      "instruction-file contents are ever written. The newest 200 are kept."));
        QVERIFY(!m_window->isPressable(QStringLiteral("Clear Recorded Data…")));
    }

    void twoScansMakeATrend()
    {
        scan(31'000);
        scan(28'500);
        QTRY_VERIFY(shows("-2,500"));
        QVERIFY(shows("2 recorded scans"));
        QVERIFY(shows("Startup tokens per scan"));
        QVERIFY(shows("Each point is one recorded scan; every total was reported by Claude."));
        QVERIFY(shows("Hover the chart to read a single scan. Dashed lines mark the band "
                      "thresholds."));
        QVERIFY(shows("Where this repository landed"));
        QVERIFY(shows("Read from the recorded scans above."));
        QVERIFY(shows("Drift across recorded scans"));
        QVERIFY(shows("Session totals were reported by Claude; category splits are local "
                      "estimates."));
    }

    void comparesScansOnceAndWhileItIsShown()
    {
        scan(31'000);
        scan(28'500);
        QTRY_VERIFY(shows("What changed"));
        // Each comparison replaces the rows.
        const QSignalSpy comparisons(changedRows(), &RowList::modelReset);
        m_window->loadwick().content().setPageIndex(static_cast<int>(AppPage::compare));
        scan(40'000);
        QCOMPARE(comparisons.count(), 0);
        m_window->loadwick().content().setPageIndex(static_cast<int>(AppPage::trends));
        QTRY_VERIFY(shows("Total, before 28,500, after 40,000, difference +11,500 tokens, "
                          "Authoritative · measured by Claude"));
        QCOMPARE(comparisons.count(), 1);
    }

    void clearingAsksFirstAndCancelLeavesTheHistory()
    {
        scan(31'000);
        press("Clear Recorded Data…");
        QTRY_VERIFY(shows("Delete every recorded scan?"));
        QVERIFY(
            shows("This cannot be undone. The scan currently on screen stays; only the recorded "
                  "history is deleted."));
        QVERIFY(shows("Delete 1 Recorded Scan"));
        QVERIFY(!shows("Clear Recorded Data…"));
        m_window->press(Qt::Key_Escape);
        QTRY_VERIFY(shows("Clear Recorded Data…"));
        QCOMPARE(m_window->loadwick().model().history().get().size(), std::size_t(1));
        QVERIFY(std::filesystem::exists(historyFile()));
    }

    void returnOpensTheConfirmationAndThenCancelsIt()
    {
        scan(31'000);
        focus("Clear Recorded Data…");
        m_window->press(Qt::Key_Return);
        QTRY_VERIFY(shows("Delete every recorded scan?"));
        m_window->press(Qt::Key_Return);
        QTRY_VERIFY(shows("Clear Recorded Data…"));
        QCOMPARE(m_window->loadwick().model().history().get().size(), std::size_t(1));
    }

    void theLastButtonShowsItsFocusRing()
    {
        recordMany();
        focus("Clear Recorded Data…");
        QQuickItem *button = m_window->loadwick().window().activeFocusItem();
        QVERIFY(button != nullptr);
        const auto ringEnd = [&] {
            return button->mapToItem(viewport(), QPointF(0, button->height())).y() + 4;
        };
        QTRY_VERIFY(ringEnd() <= viewport()->height());
    }

    void confirmingDeletesTheHistoryAndItsFile()
    {
        scan(31'000);
        scan(31'000);
        QVERIFY(std::filesystem::exists(historyFile()));
        press("Clear Recorded Data…");
        QTRY_VERIFY(shows("Delete 2 Recorded Scans"));
        press("Delete 2 Recorded Scans");
        m_window->finishClearing();
        QTRY_VERIFY(shows("Clear Recorded Data…"));
        QVERIFY(!m_window->isPressable(QStringLiteral("Clear Recorded Data…")));
        QVERIFY(!std::filesystem::exists(historyFile()));
        QVERIFY(!shows("Where this repository landed"));
        m_window->loadwick().content().setPageIndex(static_cast<int>(AppPage::compare));
        QTRY_VERIFY(shows("No recorded scans yet"));
        m_window->loadwick().content().setPageIndex(static_cast<int>(AppPage::overview));
        QTRY_VERIFY(shows("Scan complete"));
    }

    void aScanWithoutCategoriesSaysSo()
    {
        show({RecordedScanBuilder().withCategory("System prompt", 42).build()});
        QTRY_VERIFY(shows("webshop"));
        QVERIFY(!shows("No category estimates"));
        show({RecordedScanBuilder().build()});
        QTRY_VERIFY(shows("No category estimates"));
    }

    void distinguishesNamesakesByPath()
    {
        show({RecordedScanBuilder().in("/srv/one/webshop").at(1'772'615'727).build(),
              RecordedScanBuilder().in("/srv/two/webshop").at(1'772'615'728).build()});
        QTRY_COMPARE(pathOfRow("webshop"), QStringLiteral("/srv/two/webshop"));
    }

    void theSummaryTilesAreOfEqualWidth()
    {
        recordMany();
        // A layout takes a moment to settle.
        QTRY_VERIFY(std::abs((start("Band") - start("Latest scan")) -
                             (start("Drift across recorded scans") - start("Band"))) <= 1);
    }

    void aScanThatEndsLeavesTheScrollPosition()
    {
        recordMany();
        QQuickItem *flickable = viewport();
        QVERIFY(flickable != nullptr);
        QTRY_VERIFY(flickable->property("contentHeight").toDouble() - flickable->height() > 300);
        flickable->setProperty("contentY", 300);
        auto history = m_window->loadwick().model().history().get();
        history.push_back(RecordedScanBuilder().at(1'800'000'000).ofTotal(42).build());
        m_window->loadwick().model().history().set(std::move(history));
        QTRY_VERIFY(shows("42"));
        QVERIFY(settles(m_window->loadwick().window()));
        QCOMPARE(flickable->property("contentY").toDouble(), 300.0);
    }

    void anotherRepositoryStartsAtTheTop()
    {
        recordMany();
        QQuickItem *flickable = viewport();
        QTRY_VERIFY(flickable->property("contentHeight").toDouble() - flickable->height() > 300);
        flickable->setProperty("contentY", 300);
        m_window->loadwick().model().select(RepoSelection::fromUrl(m_window->folder().path()));
        QTRY_COMPARE(flickable->property("contentY").toDouble(), 0.0);
    }

    void theChartIsOneGraphicThatTheKeysRead()
    {
        recordMany();
        QQuickItem *chart =
            m_window->loadwick().window().findChild<QQuickItem *>(QStringLiteral("chart"));
        QVERIFY(chart != nullptr);
        QAccessibleInterface *graphic = QAccessible::queryAccessibleInterface(chart);
        QCOMPARE(graphic->role(), QAccessible::Graphic);
        QVERIFY(graphic->text(QAccessible::Name)
                    .startsWith(QStringLiteral("Startup tokens per scan of webshop: 30 scans ")));
        chart->forceActiveFocus(Qt::TabFocusReason);
        m_window->press(Qt::Key_End);
        QVERIFY(graphic->text(QAccessible::Description).endsWith(QStringLiteral(" tokens")));
    }

private:
    [[nodiscard]] bool shows(const char *name) const
    {
        return m_window->shows(QString::fromUtf8(name));
    }

    [[nodiscard]] std::filesystem::path historyFile() const
    {
        return m_window->folder().path() / "history" / ScanHistoryStore::fileName;
    }

    void scan(std::int64_t total)
    {
        m_window->probe().answer = [total] {
            ProbeResult result = sampleProbeResult();
            result.authoritativeTotal = total;
            return result;
        };
        if (!m_window->loadwick().model().selection().get())
            m_window->loadwick().model().select(RepoSelection::fromUrl(m_window->folder().path()));
        m_window->loadwick().model().scan();
        m_window->finishScan();
    }

    void recordMany()
    {
        std::vector<RecordedScan> scans;
        for (int day = 0; day < 30; ++day)
            scans.push_back(RecordedScanBuilder()
                                .at(1'772'615'727 + day * 86'400)
                                .ofTotal(27'000 + day * 100)
                                .build());
        m_window->loadwick().model().history().set(std::move(scans));
        QTRY_VERIFY(shows("29,900"));
    }

    /// The page's viewport.
    [[nodiscard]] QQuickItem *viewport() const
    {
        QQuickItem *item =
            m_window->loadwick().window().findChild<QQuickItem *>(QStringLiteral("chart"));
        while (item != nullptr && !item->inherits("QQuickFlickable"))
            item = item->parentItem();
        return item;
    }

    void show(std::vector<RecordedScan> scans)
    {
        m_window->loadwick().model().history().set(std::move(scans));
    }

    [[nodiscard]] RowList *changedRows() const
    {
        const auto lists =
            visibleItems(m_window->loadwick().window().contentItem(), QStringLiteral("changes"));
        return qvariant_cast<RowList *>(lists.value(0)->property("model"));
    }

    /// The description of the first row that shows this title.
    [[nodiscard]] QString pathOfRow(const char *title) const
    {
        QAccessibleInterface *label = m_window->find(QString::fromUtf8(title));
        return label == nullptr ? QString() : label->parent()->text(QAccessible::Description);
    }

    [[nodiscard]] qreal start(const char *name) const
    {
        QAccessibleInterface *label = m_window->find(QString::fromUtf8(name));
        return label == nullptr ? 0
                                : qobject_cast<QQuickItem *>(label->object())->mapToScene({}).x();
    }

    /// As the Tab key would.
    void focus(const char *name)
    {
        QAccessibleInterface *found = m_window->find(QString::fromUtf8(name));
        QVERIFY2(found != nullptr, name);
        qobject_cast<QQuickItem *>(found->object())->forceActiveFocus(Qt::TabFocusReason);
    }

    void press(const char *name)
    {
        QAccessibleInterface *button = m_window->find(QString::fromUtf8(name));
        QVERIFY2(button != nullptr && button->actionInterface() != nullptr, name);
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }

    std::unique_ptr<WindowFixture> m_window;
};

const RegisteredTest<TrendsViewTest> registered("TrendsView");

} // namespace Loadwick

#include "TrendsViewTest.moc"
