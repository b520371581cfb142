// The section "What changed" in the real window, by keyboard, pointer and screen reader.
#include <QAccessible>
#include <QClipboard>
#include <QQuickItem>
#include <QTest>

#include "charts/TrendChart.h"
#include "samples/SampleHistories.h"
#include "samples/SampleReport.h"
#include "shell/AppPage.h"
#include "shell/ContentPresenter.h"
#include "support/LayoutAudit.h"
#include "support/RecordedScanBuilder.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"
#include "trends/ChangeRow.h"

namespace Loadwick {
namespace {

constexpr std::int64_t firstScan = 1'772'615'727; // 2026-03-04 09:15:27
constexpr std::int64_t day = 86'400;

std::vector<RecordedScan> scansOf(int count, int categoryCount)
{
    std::vector<RecordedScan> scans;
    for (std::int64_t scan = 0; scan < count; ++scan) {
        RecordedScanBuilder builder;
        builder.in(sampleReport().repositoryPath).at(firstScan + scan * day);
        builder.ofTotal(sampleReport().total - count + 1 + scan);
        for (std::int64_t index = 0; index < categoryCount; ++index)
            builder.withCategory("category " + std::to_string(index),
                                 scan * (categoryCount - index));
        scans.push_back(builder.build());
    }
    return scans;
}

} // namespace

class ScanChangesSectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<WindowFixture>();
        m_window->appearance().setMotion(Appearance::Reduced);
        window().resize(960, 640);
    }
    void cleanup() { m_window.reset(); }

    void oneScanHasNoSection();
    void everyRowCanBeReadAndCopied();
    void aScanThatEndsLeavesTheKeysInTheList();
    void theKeysChooseADate();
    void thePointerChoosesADate();
    void aScreenReaderChoosesADate();
    void theKeysChooseAPointOfTheChart();
    void thePointerChoosesAPointOfTheChart();
    void thePillOfTheOverviewLeadsToTheSection_data();
    void thePillOfTheOverviewLeadsToTheSection();
    void createsOnlyTheRowsThatShow();
    void fitsEveryWidth_data();
    void fitsEveryWidth();

private:
    [[nodiscard]] QQuickWindow &window() { return m_window->loadwick().window(); }
    [[nodiscard]] static qreal pageTopOf(const QQuickItem *of);
    [[nodiscard]] ScanModel &model() { return m_window->loadwick().model(); }
    [[nodiscard]] QQuickItem *item(const char *name)
    {
        return visibleItems(window().contentItem(), QString::fromLatin1(name)).value(0);
    }
    void record(std::vector<RecordedScan> scans) { model().history().set(std::move(scans)); }
    void settle() { QVERIFY(settles(window())); }
    void showTrends(std::vector<RecordedScan> scans);
    /// The accessible names of the rows.
    [[nodiscard]] QStringList sentences();
    [[nodiscard]] QString nameOf(const QQuickItem *of) const;
    [[nodiscard]] QString focusName() { return nameOf(window().activeFocusItem()); }
    void focus(const char *name);
    void click(const QQuickItem *on, QPointF at);
    void clickMiddleOf(const QQuickItem *on) { click(on, {on->width() / 2, on->height() / 2}); }
    /// The row of the open list whose date begins like this; null if none has the focus.
    [[nodiscard]] QQuickItem *dateBeginning(const char *words);

    std::unique_ptr<WindowFixture> m_window;
};

/// Where an item is in its page's viewport.
qreal ScanChangesSectionTest::pageTopOf(const QQuickItem *of)
{
    const QQuickItem *viewport = of;
    while (viewport != nullptr && !viewport->inherits("QQuickFlickable"))
        viewport = viewport->parentItem();
    return of->mapToItem(viewport, QPointF()).y();
}

void ScanChangesSectionTest::showTrends(std::vector<RecordedScan> scans)
{
    record(std::move(scans));
    m_window->loadwick().content().setPageIndex(static_cast<int>(AppPage::trends));
    QTRY_VERIFY(item("changes") != nullptr);
    settle();
}

QStringList ScanChangesSectionTest::sentences()
{
    settle(); // rows are made with the next frame
    QStringList names;
    for (const QQuickItem *row : shownItems(*item("changes")))
        if (qobject_cast<const ChangeRow *>(row) != nullptr)
            names << nameOf(row);
    return names;
}

QString ScanChangesSectionTest::nameOf(const QQuickItem *of) const
{
    QAccessibleInterface *found =
        QAccessible::queryAccessibleInterface(const_cast<QQuickItem *>(of));
    return found == nullptr ? QString() : found->text(QAccessible::Name);
}

void ScanChangesSectionTest::focus(const char *name)
{
    item(name)->forceActiveFocus(Qt::TabFocusReason);
    QVERIFY(item(name)->hasActiveFocus());
    // The page scrolls to it.
    QTRY_VERIFY(pageTopOf(item(name)) > 0 && pageTopOf(item(name)) < window().height() - 60);
}

void ScanChangesSectionTest::click(const QQuickItem *on, QPointF at)
{
    QTest::mouseClick(&window(), Qt::LeftButton, {}, on->mapToScene(at).toPoint());
}

QQuickItem *ScanChangesSectionTest::dateBeginning(const char *words)
{
    const QQuickItem *current = window().activeFocusItem();
    if (current == nullptr || !current->inherits("QQuickMenuItem"))
        return nullptr;
    for (QQuickItem *row : current->parentItem()->childItems())
        if (nameOf(row).startsWith(QString::fromLatin1(words)))
            return row;
    return nullptr;
}

void ScanChangesSectionTest::oneScanHasNoSection()
{
    showTrends(scansOf(2, 1));
    QVERIFY(m_window->shows(QStringLiteral("What changed")));
    record(scansOf(1, 1));
    QTRY_VERIFY(!m_window->shows(QStringLiteral("What changed")));
    record({});
    record(scansOf(2, 1));
    QTRY_VERIFY(m_window->shows(QStringLiteral("What changed")));
}

void ScanChangesSectionTest::everyRowCanBeReadAndCopied()
{
    std::vector<RecordedScan> scans = scansOf(2, 0);
    scans[0].categories = {{"mcp tools", 8'240}, {"same", 5}};
    scans[1].categories = {{"skills", 1'935}, {"same", 5}};
    showTrends(std::move(scans));
    QTRY_COMPARE(sentences().size(), 3);
    QVERIFY(m_window->shows(QStringLiteral("1 category unchanged, 5 tokens")));
    QVERIFY(m_window->shows(QStringLiteral("Categories: local estimates")));
    focus("changes");
    QVERIFY(focusName().startsWith(QStringLiteral("Total, before 27,653, after 27,654, ")));
    m_window->press(Qt::Key_Down);
    QCOMPARE(focusName(),
             QStringLiteral("mcp tools, before 8,240, gone, difference -8,240 tokens"));
    m_window->press(Qt::Key_Down);
    QCOMPARE(focusName(), QStringLiteral("skills, new, after 1,935, difference +1,935 tokens"));
    m_window->press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), focusName());
}

void ScanChangesSectionTest::aScanThatEndsLeavesTheKeysInTheList()
{
    std::vector<RecordedScan> scans = scansOf(3, 4);
    showTrends({scans[0], scans[1]});
    focus("changes");
    m_window->press(Qt::Key_Down);
    m_window->press(Qt::Key_Down);
    record(scans);
    m_window->press(Qt::Key_Down);
    QCOMPARE(focusName(), QStringLiteral("category 2, before 2, after 4, difference +2 tokens"));
    focus("later");
    m_window->press(Qt::Key_Return);
    QTRY_VERIFY(dateBeginning("Mar 6, ") != nullptr);
    record({scans[0], scans[1]});
    QTRY_VERIFY(item("later")->hasActiveFocus());
}

void ScanChangesSectionTest::theKeysChooseADate()
{
    showTrends(scansOf(5, 1));
    focus("earlier");
    const qreal top = pageTopOf(item("earlier"));
    m_window->press(Qt::Key_Return);
    QTRY_VERIFY(focusName().startsWith(QStringLiteral("Mar 7, ")));
    m_window->press(Qt::Key_End);
    QCOMPARE(focusName().left(7), QStringLiteral("Mar 4, "));
    m_window->press(Qt::Key_Up);
    m_window->press(Qt::Key_Return);
    QTRY_VERIFY(item("earlier")->hasActiveFocus());
    QCOMPARE(focusName().left(15), QStringLiteral("Before: Mar 5, "));
    QTRY_VERIFY(sentences().last().startsWith(QStringLiteral("category 0, before 1, after 4, ")));
    QCOMPARE(pageTopOf(item("earlier")), top);
    focus("later");
    m_window->press(Qt::Key_Down);
    QTRY_VERIFY(focusName().startsWith(QStringLiteral("Mar 8, ")));
    m_window->press(Qt::Key_PageDown);
    m_window->press(Qt::Key_Enter);
    QTRY_VERIFY(item("later")->hasActiveFocus());
    const QString chosen = sentences().last();
    QVERIFY(chosen.startsWith(QStringLiteral("category 0, before 0, after 1, ")));
    m_window->press(Qt::Key_Space);
    QTRY_VERIFY(dateBeginning("Mar 5, ") != nullptr);
    m_window->press(Qt::Key_Home);
    m_window->press(Qt::Key_Escape);
    QTRY_VERIFY(item("later")->hasActiveFocus());
    QCOMPARE(sentences().last(), chosen);
}

void ScanChangesSectionTest::thePointerChoosesADate()
{
    showTrends(scansOf(5, 1));
    focus("earlier"); // scrolls there
    clickMiddleOf(item("earlier"));
    QTRY_VERIFY(dateBeginning("Mar 6, ") != nullptr);
    clickMiddleOf(dateBeginning("Mar 6, "));
    QTRY_COMPARE(nameOf(item("earlier")).left(15), QStringLiteral("Before: Mar 6, "));
    QTRY_VERIFY(dateBeginning("Mar 6, ") == nullptr);
    clickMiddleOf(item("earlier"));
    QTRY_VERIFY(dateBeginning("Mar 6, ") != nullptr);
    clickMiddleOf(item("earlier")); // which the list does not cover, although it is at the bottom
    settle();
    QVERIFY(!item("earlier")->property("isOpen").toBool() && item("earlier")->hasActiveFocus());
}

void ScanChangesSectionTest::aScreenReaderChoosesADate()
{
    showTrends(scansOf(5, 1));
    m_window->pressButton(QStringLiteral("After: Mar 8, 2026, 9:15\u202FAM"));
    QTRY_VERIFY(dateBeginning("Mar 6, ") != nullptr);
    QAccessibleInterface *row = QAccessible::queryAccessibleInterface(dateBeginning("Mar 6, "));
    QCOMPARE(row->text(QAccessible::Description), QStringLiteral("27,652 tokens"));
    row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(m_window->shows(QStringLiteral("After: Mar 6, 2026, 9:15\u202FAM")));
    QVERIFY(m_window->shows(QStringLiteral("Before: Mar 5, 2026, 9:15\u202FAM")));
}

void ScanChangesSectionTest::theKeysChooseAPointOfTheChart()
{
    showTrends(scansOf(5, 1));
    focus("chart");
    m_window->press(Qt::Key_Return); // no point is current
    QCOMPARE(nameOf(item("later")).left(14), QStringLiteral("After: Mar 8, "));
    m_window->press(Qt::Key_End);
    m_window->press(Qt::Key_Left);
    m_window->press(Qt::Key_Left);
    m_window->press(Qt::Key_Return);
    QCOMPARE(nameOf(item("later")).left(14), QStringLiteral("After: Mar 6, "));
    QCOMPARE(nameOf(item("earlier")).left(15), QStringLiteral("Before: Mar 5, "));
}

void ScanChangesSectionTest::thePointerChoosesAPointOfTheChart()
{
    showTrends(scansOf(5, 1));
    auto *chart = qobject_cast<TrendChart *>(item("chart"));
    click(chart, chart->centreOf(2));
    QTRY_COMPARE(nameOf(item("later")).left(14), QStringLiteral("After: Mar 6, "));
    const auto centreOf = [](const QQuickItem *mark) {
        return mark->position() + QPointF(mark->width() / 2, mark->height() / 2);
    };
    QVERIFY((centreOf(item("laterPoint")) - chart->centreOf(2)).manhattanLength() <= 1);
    QVERIFY((centreOf(item("earlierPoint")) - chart->centreOf(1)).manhattanLength() <= 1);
    window().resize(1'400, 780);
    QTRY_VERIFY(chart->width() > 900);
    QVERIFY((centreOf(item("laterPoint")) - chart->centreOf(2)).manhattanLength() <= 1);
    click(chart, {1, 1});
    QCOMPARE(nameOf(item("later")).left(14), QStringLiteral("After: Mar 6, "));
}

void ScanChangesSectionTest::thePillOfTheOverviewLeadsToTheSection_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("keys") << "keys";
    QTest::newRow("pointer") << "pointer";
    QTest::newRow("screen reader") << "screen reader";
    QTest::newRow("other scans were chosen") << "again";
}

void ScanChangesSectionTest::thePillOfTheOverviewLeadsToTheSection()
{
    QFETCH(const QString, how);
    const QString words = QStringLiteral("+1 token since Mar 6, 2026, 9:15\u202FAM");
    if (how == u"again") {
        showTrends(scansOf(4, 30));
        focus("chart");
        m_window->press(Qt::Key_Home);
        m_window->press(Qt::Key_Return);
        QCOMPARE(nameOf(item("earlier")).left(15), QStringLiteral("Before: Mar 4, "));
        focus("changes");
        m_window->press(Qt::Key_End);
        m_window->loadwick().content().setPageIndex(static_cast<int>(AppPage::overview));
    }
    model().select(RepoSelection::fromUrl(sampleReport().repositoryPath));
    model().state().set(ScanState::result(sampleReport()));
    QCOMPARE(m_window->shows(words), how == u"again");
    record(scansOf(4, 30));
    QTRY_VERIFY(m_window->shows(words));
    m_window->appearance().setTextScale(how == u"keys" ? 2.0 : 1.0);
    settle();
    QTRY_COMPARE(LayoutAudit::faults(window()) + LayoutAudit::misplacedItems(window()),
                 QStringList());
    auto *button = qobject_cast<QQuickItem *>(m_window->find(words)->object());
    button->forceActiveFocus(Qt::TabFocusReason);
    if (how == u"pointer")
        clickMiddleOf(button);
    else if (how == u"keys")
        m_window->press(Qt::Key_Return);
    else
        m_window->pressButton(words);
    QCOMPARE(m_window->loadwick().content().pageIndex(), int(AppPage::trends));
    QTRY_VERIFY(focusName().startsWith(QStringLiteral("Total, before 27,653, after 27,654")));
    const qreal top = pageTopOf(
        qobject_cast<QQuickItem *>(m_window->find(QStringLiteral("What changed"))->object()));
    QVERIFY2(std::abs(top) < 80, qPrintable(QString::number(top)));
}

// 200 scans of 55,000 categories would take half a gigabyte: only the compared ones are that large.
void ScanChangesSectionTest::createsOnlyTheRowsThatShow()
{
    std::vector<RecordedScan> scans = scansOf(200, 3);
    const std::vector<RecordedScan> large = scansOf(2, 55'000);
    scans[198].categories = large[0].categories;
    scans[199].categories = large[1].categories;
    showTrends(std::move(scans));
    focus("changes");
    m_window->press(Qt::Key_PageDown);
    QVERIFY(sentences().size() < 30);
    m_window->press(Qt::Key_End);
    QTRY_VERIFY(focusName().startsWith(QStringLiteral("category 54999, ")));
    QVERIFY(sentences().size() < 30);
    focus("later");
    m_window->press(Qt::Key_Return);
    QTRY_VERIFY(window().activeFocusItem()->inherits("QQuickMenuItem"));
    QVERIFY(window().activeFocusItem()->parentItem()->childItems().size() < 30);
    m_window->press(Qt::Key_End);
    m_window->press(Qt::Key_Return);
    QTRY_COMPARE(sentences().size(), 4);
}

void ScanChangesSectionTest::fitsEveryWidth_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<double>("scale");
    for (const double scale : {1.0, 1.2, 1.4, 2.0})
        for (const int width : {960, 1'180})
            QTest::addRow("%d wide, text of %.1f", width, scale) << width << scale;
    QTest::newRow("2560 wide, text of 1.0") << 2'560 << 1.0;
}

// At the first size, then at the real one, as the program does.
void ScanChangesSectionTest::fitsEveryWidth()
{
    QFETCH(const int, width);
    QFETCH(const double, scale);
    m_window->appearance().setTextScale(scale);
    showTrends(SampleHistories::all().back().scans);
    window().resize(width, 640);
    settle();
    QTRY_COMPARE(LayoutAudit::faults(window()) + LayoutAudit::misplacedItems(window()),
                 QStringList());
    const QQuickItem *changes = item("changes");
    for (const QQuickItem *shown : shownItems(*changes)) {
        const auto *row = qobject_cast<const ChangeRow *>(shown);
        if (row == nullptr)
            continue;
        QCOMPARE(row->tip(), QString()); // nothing is elided
        QCOMPARE(row->width(), changes->width());
        const QFontMetricsF metrics(row->style()->totalFont);
        for (const QString &figure : {row->before, row->after, row->difference})
            QVERIFY(metrics.horizontalAdvance(figure) <= row->layout().after.width());
        const QRectF track = row->layout().track;
        QVERIFY(track.width() >= 100 && track.right() <= row->width() + 0.5);
    }
}

const RegisteredTest<ScanChangesSectionTest> registered("ScanChangesSection");

} // namespace Loadwick

#include "ScanChangesSectionTest.moc"
