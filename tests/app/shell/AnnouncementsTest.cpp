// What a screen reader hears of the window although it belongs to no focused item.
#include <QAccessible>
#include <QTest>

#include "base/QtText.h"
#include "onboarding/OnboardingPresenter.h"
#include "samples/SampleHistories.h"
#include "samples/SampleScans.h"
#include "shell/ContentPresenter.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"

namespace Loadwick {
namespace {

constexpr auto heardMark = "wasHeard";

} // namespace

class AnnouncementsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = std::make_unique<WindowFixture>(); }
    void cleanup() { m_window.reset(); }
    void aChosenRepositoryIsAnnounced();
    void theStartAndTheEndOfAScanAreAnnounced();
    void aFailureIsAnnouncedByItsHeadline();
    void aPageIsAnnouncedUnlessItsRowHasTheFocus();
    void aSectionSaysWhetherItIsOpen();
    void theListOfRepositoriesSaysHowManyThereAre();
    void copyingIsAnnounced();
    void aSavedFileIsAnnounced();
    void theStepsOfTheWalkThroughAreAnnounced();
    void theMarkThatAKeyReachesIsAnnounced_data();
    void theMarkThatAKeyReachesIsAnnounced();
    void aChosenScanIsAnnouncedWithItsDifference();
    void anAnnouncementIsKeptForAWhile();

private:
    void chooseAndScan();
    [[nodiscard]] ContentPresenter &content() { return m_window->loadwick().content(); }
    /// The announcements since the last call, in order.
    [[nodiscard]] QStringList heard();
    [[nodiscard]] QQuickItem *announcements();

    std::unique_ptr<WindowFixture> m_window;
};

void AnnouncementsTest::chooseAndScan()
{
    m_window->scan(m_window->folder().path());
    (void)heard();
}

QStringList AnnouncementsTest::heard()
{
    QStringList words;
    for (QQuickItem *item : announcements()->childItems()) {
        const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(item);
        if (!item->property(heardMark).toBool() && spoken->role() == QAccessible::Notification)
            words.append(spoken->text(QAccessible::Name));
        item->setProperty(heardMark, true);
    }
    return words;
}

QQuickItem *AnnouncementsTest::announcements()
{
    return m_window->loadwick().window().findChild<QQuickItem *>(QStringLiteral("announcements"));
}

void AnnouncementsTest::aChosenRepositoryIsAnnounced()
{
    content().setPageIndex(1);
    (void)heard();
    m_window->choose(m_window->folder().path());
    QCOMPARE(heard(),
             (QStringList{QStringLiteral("Repository %1 chosen").arg(content().repositoryName()),
                          QStringLiteral("Overview page")}));
}

void AnnouncementsTest::theStartAndTheEndOfAScanAreAnnounced()
{
    m_window->choose(m_window->folder().path());
    (void)heard();
    m_window->press(Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(heard(), QStringList{QStringLiteral("Scan started")});
    m_window->finishScan();
    QCOMPARE(heard(),
             QStringList{QStringLiteral("Scan complete. The total measured by Claude is 27,654 "
                                        "tokens, which falls in the Lean band (under 30,000).")});
}

void AnnouncementsTest::aFailureIsAnnouncedByItsHeadline()
{
    m_window->probe().answer = []() -> ProbeResult { throw ProbeError::sessionFailed("Why"); };
    m_window->scan(m_window->folder().path());
    QCOMPARE(heard().last(), QStringLiteral("Scan failed. The probe session reported an error."));
}

void AnnouncementsTest::aPageIsAnnouncedUnlessItsRowHasTheFocus()
{
    m_window->press(Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(heard(), QStringList{QStringLiteral("Trends page")});
    m_window->pressButton(QStringLiteral("Compare"));
    QCOMPARE(heard(), QStringList{QStringLiteral("Compare page")});
    m_window->press(Qt::Key_F6);
    m_window->press(Qt::Key_F6);
    m_window->press(Qt::Key_Up);
    QCOMPARE(content().pageIndex(), 1);
    QCOMPARE(heard(), QStringList());
}

void AnnouncementsTest::aSectionSaysWhetherItIsOpen()
{
    chooseAndScan();
    m_window->pressButton(QStringLiteral("Why these bands?"));
    QCOMPARE(heard(), QStringList{QStringLiteral("Expanded")});
    m_window->pressButton(QStringLiteral("Why these bands?"));
    QCOMPARE(heard(), QStringList{QStringLiteral("Collapsed")});
}

void AnnouncementsTest::theListOfRepositoriesSaysHowManyThereAre()
{
    chooseAndScan();
    for (int time = 0; time < 2; ++time) {
        m_window->pressButton(QStringLiteral("Scanned repositories"));
        QCOMPARE(heard(), QStringList{QStringLiteral("1 repository")});
        m_window->press(Qt::Key_0);
        QCOMPARE(heard(), QStringList{QStringLiteral("0 of 1 repositories")});
        m_window->press(Qt::Key_Escape);
    }
}

void AnnouncementsTest::copyingIsAnnounced()
{
    chooseAndScan();
    for (int time = 0; time < 2; ++time) {
        m_window->pressButton(QStringLiteral("Copy Summary"));
        QCOMPARE(heard(), QStringList{QStringLiteral("Copied")});
        QVERIFY(m_window->shows(QStringLiteral("Copied")));
    }
}

void AnnouncementsTest::aSavedFileIsAnnounced()
{
    m_window->loadwick().model().history().set(SampleHistories::ofSize(31, 5, 3));
    content().setPageIndex(2);
    (void)heard();
    const std::filesystem::path file = m_window->folder().path() / "scans.csv";
    m_window->saver().answer = {.file = file, .mayReplace = true};
    m_window->pressButton(QStringLiteral("Save Data…"));
    m_window->finishScan();
    QCOMPARE(heard(), QStringList{QStringLiteral("Saved as %1.").arg(qtText(file.native()))});
}

void AnnouncementsTest::theStepsOfTheWalkThroughAreAnnounced()
{
    m_window.reset();
    m_window = std::make_unique<WindowFixture>(std::make_shared<FakeCompletionStore>());
    m_window->askForFirstLaunch();
    QTRY_VERIFY(m_window->shows(QStringLiteral("Next")));
    QCOMPARE(heard(), QStringList()); // a dialog that opens is spoken as a whole
    const OnboardingPresenter &onboarding = m_window->loadwick().onboarding();
    m_window->press(Qt::Key_Return);
    const OnboardingStepTexts &step = *onboarding.currentStep();
    const QString words = heard().join(u'|');
    QVERIFY2(words.startsWith(QStringLiteral("Step 2 of 4\n%1\n%2").arg(step.title(), step.body())),
             qPrintable(words));
    m_window->press(Qt::Key_Escape);
    QCOMPARE(heard(), QStringList());
}

void AnnouncementsTest::theMarkThatAKeyReachesIsAnnounced_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("chart");
    QTest::addColumn<QString>("hint");
    QTest::addColumn<QString>("first");
    QTest::newRow("donut")
        << 0 << QStringLiteral("donut") << QStringLiteral(" The arrow keys walk the segments.")
        << QStringLiteral("Repository instructions, 26,177 tokens, 18.4%, measured on disk at ~4 "
                          "bytes/token (estimate)\n1 of 15");
    QTest::newRow("treemap") << 0 << QStringLiteral("map")
                             << QStringLiteral("walk the tiles with the arrow keys, for its path "
                                               "and share.")
                             << QStringLiteral("31,870 bytes on disk · local estimate at 4 "
                                               "bytes/token.\n1 of 31");
    QTest::newRow("trend") << 1 << QStringLiteral("chart")
                           << QStringLiteral("; Enter compares one with an earlier one.")
                           << QStringLiteral(" tokens\n1 of 7");
}

void AnnouncementsTest::theMarkThatAKeyReachesIsAnnounced()
{
    QFETCH(const int, page);
    QFETCH(const QString, chart);
    QFETCH(const QString, hint);
    QFETCH(const QString, first);
    ScanModel &model = m_window->loadwick().model();
    model.history().set(SampleHistories::ofSize(31, 5, 3));
    model.state().set(ScanState::result(SampleScans::excessive().report()));
    content().setPageIndex(page);
    const auto found = visibleItems(m_window->loadwick().window().contentItem(), chart);
    QCOMPARE(found.size(), 1);
    const QAccessibleInterface *graphic = QAccessible::queryAccessibleInterface(found.front());
    QVERIFY2(graphic->text(QAccessible::Description).endsWith(hint),
             qPrintable(graphic->text(QAccessible::Description)));
    (void)heard();
    found.front()->forceActiveFocus();
    m_window->press(Qt::Key_Right);
    const QString words = heard().join(u'|');
    QVERIFY2(words.endsWith(first), qPrintable(words));
}

void AnnouncementsTest::aChosenScanIsAnnouncedWithItsDifference()
{
    m_window->loadwick().model().history().set(SampleHistories::ofSize(3, 1, 3));
    content().setPageIndex(1);
    auto &window = m_window->loadwick().window();
    visibleItems(window.contentItem(), QStringLiteral("chart")).front()->forceActiveFocus();
    m_window->press(Qt::Key_End);
    m_window->press(Qt::Key_Left);
    (void)heard();
    m_window->press(Qt::Key_Return);
    const QString words = heard().join(u'|');
    QVERIFY2(words.startsWith(QStringLiteral("Before: Mar 1, 2026, 6:41\u202FPM. After: Mar 3, ")),
             qPrintable(words));
    QVERIFY2(
        words.contains(QStringLiteral("Total, before 14,000, after 16,917, difference +2,917 ")),
        qPrintable(words));
    visibleItems(window.contentItem(), QStringLiteral("later")).front()->forceActiveFocus();
    m_window->press(Qt::Key_Return);
    QTRY_VERIFY(window.activeFocusItem()->inherits("QQuickMenuItem"));
    (void)heard();
    m_window->press(Qt::Key_Return);
    QVERIFY(heard().join(u'|').startsWith(QStringLiteral("Total, before 14,000, after ")));
}

// A burst, too, is heard as a whole and leaves nothing behind.
void AnnouncementsTest::anAnnouncementIsKeptForAWhile()
{
    announcements()->setProperty("keptMilliseconds", 1);
    for (int page = 0; page < 20; ++page)
        content().setPageIndex(1 + page % 2);
    QCOMPARE(heard().size(), 20);
    QTRY_COMPARE(announcements()->childItems().size(), 0);
}

const RegisteredTest<AnnouncementsTest> registered("Announcements");

} // namespace Loadwick

#include "AnnouncementsTest.moc"
