// Whether anything moves in the running window, frame by frame.
#include <functional>

#include <QDeadlineTimer>
#include <QTest>

#include "onboarding/OnboardingPresenter.h"
#include "samples/SampleHistories.h"
#include "samples/SampleScans.h"
#include "support/MotionSampler.h"
#include "support/ScanFakes.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"

namespace Loadwick {
namespace {

// The charts take longest to arrive; a little under half of that shows whether they move.
constexpr int stretchMilliseconds = 350;
constexpr int pointedMilliseconds = 70;
// More than a layout takes to settle, however long each frame takes on a busy machine.
constexpr int enoughFrames = 20;
constexpr int longestMilliseconds = 10'000;

} // namespace

class ReducedMotionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void nothingMovesUnderReducedMotion_data() { changes(); }
    void nothingMovesUnderReducedMotion();
    void somethingMovesUnderFullMotion_data() { changes(); }
    void somethingMovesUnderFullMotion();
    void theSheetOnlyFadesUnderReducedMotion();
    void theSheetMovesUnderFullMotion();
    void aScanStopsTurningOnceMotionIsReduced();

private:
    using Change = void (ReducedMotionTest::*)();

    static void changes();
    void open(Appearance::Motion motion, std::shared_ptr<FakeCompletionStore> store = {});
    void openSheet(Appearance::Motion motion);
    void settleAndBegin();
    void scanOn() { rest(stretchMilliseconds); }
    void rest(int milliseconds);
    QStringList movingDuring(Change change);

    void showResult();
    void showPages();
    void scan();
    void pointAtCards();
    void openSections();
    void walkThroughSheet();

    std::unique_ptr<WindowFixture> m_window;
    std::unique_ptr<MotionSampler> m_sampler;
    QStringList m_moving; ///< in all stretches so far
};

void ReducedMotionTest::cleanup()
{
    m_sampler.reset();
    m_window.reset();
}

void ReducedMotionTest::changes()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("a result arrives") << &ReducedMotionTest::showResult;
    QTest::newRow("pages change") << &ReducedMotionTest::showPages;
    QTest::newRow("a scan runs") << &ReducedMotionTest::scan;
    QTest::newRow("the pointer crosses the cards") << &ReducedMotionTest::pointAtCards;
    QTest::newRow("sections open") << &ReducedMotionTest::openSections;
}

void ReducedMotionTest::nothingMovesUnderReducedMotion()
{
    QFETCH(const Change, change);
    open(Appearance::Reduced);
    QCOMPARE(movingDuring(change).join(u' '), QString());
}

void ReducedMotionTest::somethingMovesUnderFullMotion()
{
    QFETCH(const Change, change);
    open(Appearance::Full);
    QVERIFY(!movingDuring(change).isEmpty());
}

void ReducedMotionTest::theSheetOnlyFadesUnderReducedMotion()
{
    openSheet(Appearance::Reduced);
    QStringList moving = movingDuring(&ReducedMotionTest::walkThroughSheet);
    QVERIFY(moving.contains(QStringLiteral("OnboardingStepContent.opacity")));
    // The opacity of a dot follows its emphasis.
    moving.removeIf([](const QString &name) {
        return name.endsWith(QStringLiteral(".opacity")) ||
               name.endsWith(QStringLiteral(".emphasis"));
    });
    QCOMPARE(moving.join(u' '), QString());
}

void ReducedMotionTest::theSheetMovesUnderFullMotion()
{
    openSheet(Appearance::Full);
    const QString moving = movingDuring(&ReducedMotionTest::walkThroughSheet).join(u' ');
    for (const char *name :
         {"OnboardingStepContent.opacity", ".emphasis", ".rise", "OnboardingToolbarCallout.bob"})
        QVERIFY2(moving.contains(QLatin1String(name)), qPrintable(moving));
}

void ReducedMotionTest::aScanStopsTurningOnceMotionIsReduced()
{
    open(Appearance::Full);
    QVERIFY(!movingDuring(&ReducedMotionTest::scan).isEmpty());
    m_window->appearance().setMotion(Appearance::Reduced);
    QCOMPARE(movingDuring(&ReducedMotionTest::scanOn).join(u' '), QString());
}

void ReducedMotionTest::open(Appearance::Motion motion, std::shared_ptr<FakeCompletionStore> store)
{
    m_window = std::make_unique<WindowFixture>(std::move(store));
    m_window->appearance().setMotion(motion);
    m_window->loadwick().model().history().set(SampleHistories::ofSize(12, 3, 6));
    m_window->loadwick().model().select(RepoSelection::fromUrl("/home/someone/shop"));
    m_sampler = std::make_unique<MotionSampler>(m_window->loadwick().window());
    QTest::qWait(stretchMilliseconds);
}

void ReducedMotionTest::openSheet(Appearance::Motion motion)
{
    open(motion, std::make_shared<FakeCompletionStore>());
    m_window->askForFirstLaunch();
    QTRY_VERIFY(m_window->shows(QStringLiteral("Next")));
    QTest::qWait(stretchMilliseconds);
}

// Ignores motion on the way to a test's initial state.
void ReducedMotionTest::settleAndBegin()
{
    QTest::qWait(2 * stretchMilliseconds);
    m_sampler->begin();
}

// Ends a stretch, so that a new layout may settle in the next one. Waits longer while frames keep
// arriving and are too few to judge.
void ReducedMotionTest::rest(int milliseconds)
{
    const QDeadlineTimer latest(longestMilliseconds);
    int before = 0;
    do {
        before = m_sampler->frameCount();
        QTest::qWait(milliseconds);
    } while (m_sampler->frameCount() > before && m_sampler->frameCount() < enoughFrames &&
             !latest.hasExpired());
    m_moving += m_sampler->moving();
    m_sampler->begin();
}

QStringList ReducedMotionTest::movingDuring(Change change)
{
    m_moving.clear();
    m_sampler->begin();
    (this->*change)();
    rest(stretchMilliseconds);
    m_moving.removeDuplicates();
    return m_moving;
}

void ReducedMotionTest::showResult()
{
    m_window->loadwick().model().state().set(ScanState::result(SampleScans::heavy().report()));
}

void ReducedMotionTest::showPages()
{
    for (const Qt::Key page : {Qt::Key_2, Qt::Key_3, Qt::Key_1}) {
        m_window->press(page, Qt::ControlModifier);
        rest(stretchMilliseconds);
    }
}

void ReducedMotionTest::scan()
{
    m_window->loadwick().model().state().set(ScanState::scanning());
}

void ReducedMotionTest::pointAtCards()
{
    showResult();
    settleAndBegin();
    QQuickWindow &window = m_window->loadwick().window();
    for (const QQuickItem *border : visibleItems(window.contentItem(), QStringLiteral("border"))) {
        const QPoint corner = border->mapToScene(QPointF(4, 20)).toPoint();
        if (corner.y() > window.height())
            continue;
        QTest::mouseMove(&window, corner);
        rest(pointedMilliseconds);
    }
}

void ReducedMotionTest::openSections()
{
    showResult();
    settleAndBegin();
    const QQuickItem &root = *m_window->loadwick().window().contentItem();
    for (QQuickItem *item : shownItems(root)) {
        if (item->property("isExpanded").isValid())
            item->setProperty("isExpanded", true);
    }
}

void ReducedMotionTest::walkThroughSheet()
{
    for (int step = 0; step < m_window->loadwick().onboarding().stepCount(); ++step) {
        m_window->press(Qt::Key_Return);
        rest(stretchMilliseconds);
    }
}

const RegisteredTest<ReducedMotionTest> registered("ReducedMotion");

} // namespace Loadwick

#include "ReducedMotionTest.moc"
