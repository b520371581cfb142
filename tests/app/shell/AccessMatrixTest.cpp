// Every page in every look, with and without motion, left to right and right to left: nothing is
// clipped and everything has a name. CTest also runs it at twice the scale.
#include <array>

#include <QGuiApplication>
#include <QTest>

#include "onboarding/OnboardingPresenter.h"
#include "samples/SampleHistories.h"
#include "samples/SampleScans.h"
#include "shell/ContentPresenter.h"
#include "support/LayoutAudit.h"
#include "support/ScanFakes.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"
#include "theme/AppearanceSource.h"

namespace Loadwick {
namespace {

constexpr QSize smallest(960, 640);
constexpr int arrivalMilliseconds = 450; // until a page, a step and a chart have arrived
constexpr int settlingMilliseconds = 2'000;

constexpr qsizetype leastTexts = 9; // a failed scan shows the fewest

struct Look
{
    Appearance::Scheme scheme;
    Appearance::Contrast contrast;
};
constexpr std::array<Look, 4> looks{{{Appearance::Light, Appearance::Standard},
                                     {Appearance::Light, Appearance::More},
                                     {Appearance::Dark, Appearance::Standard},
                                     {Appearance::Dark, Appearance::More}}};

qsizetype textCount(QQuickWindow &window)
{
    QList<QQuickItem *> items = shownItems(*window.contentItem());
    items.removeIf([](const QQuickItem *item) { return !item->inherits("QQuickText"); });
    return items.size();
}

} // namespace

class AccessMatrixTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void everyPageFitsAndIsNamed_data();
    void everyPageFitsAndIsNamed();
    void theWalkThroughFitsAndIsNamed_data() { everyPageFitsAndIsNamed_data(); }
    void theWalkThroughFitsAndIsNamed();
    void everyPageFitsInTheLargestText_data() { directions(); }
    void everyPageFitsInTheLargestText();
    void theWalkThroughFitsInTheLargestText_data() { directions(); }
    void theWalkThroughFitsInTheLargestText();
    void theFiguresOfEveryLocaleFit_data();
    void theFiguresOfEveryLocaleFit();

private:
    static void directions();
    void open(Qt::LayoutDirection direction, Appearance::Motion motion,
              const std::string &locale = "en_US");
    void openWalkThrough(Qt::LayoutDirection direction, Appearance::Motion motion);
    void use(const Look &look);
    void visitPages();
    void visitStates();
    void visitFullPages();
    void visitSteps();
    void arrive();
    void verify();

    std::unique_ptr<WindowFixture> m_window;
};

void AccessMatrixTest::cleanup()
{
    m_window.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void AccessMatrixTest::directions()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void AccessMatrixTest::everyPageFitsAndIsNamed_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<Appearance::Motion>("motion");
    QTest::newRow("left to right, moving") << Qt::LeftToRight << Appearance::Full;
    QTest::newRow("left to right, still") << Qt::LeftToRight << Appearance::Reduced;
    QTest::newRow("right to left, moving") << Qt::RightToLeft << Appearance::Full;
    QTest::newRow("right to left, still") << Qt::RightToLeft << Appearance::Reduced;
}

void AccessMatrixTest::everyPageFitsAndIsNamed()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const Appearance::Motion, motion);
    open(direction, motion);
    visitStates();
    visitFullPages();
    for (const Look &look : looks) {
        use(look);
        visitPages();
    }
}

void AccessMatrixTest::theWalkThroughFitsAndIsNamed()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const Appearance::Motion, motion);
    openWalkThrough(direction, motion);
    visitSteps();
}

void AccessMatrixTest::everyPageFitsInTheLargestText()
{
    QFETCH(const Qt::LayoutDirection, direction);
    open(direction, Appearance::Reduced);
    m_window->appearance().setTextScale(DesktopPreferences::largestTextScale);
    visitStates();
    visitFullPages();
}

void AccessMatrixTest::theWalkThroughFitsInTheLargestText()
{
    QFETCH(const Qt::LayoutDirection, direction);
    openWalkThrough(direction, Appearance::Reduced);
    m_window->appearance().setTextScale(DesktopPreferences::largestTextScale);
    visitSteps();
}

void AccessMatrixTest::theFiguresOfEveryLocaleFit_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QString>("locale");
    QTest::newRow("de_DE") << Qt::LeftToRight << QStringLiteral("de_DE");
    QTest::newRow("hi_IN") << Qt::LeftToRight << QStringLiteral("hi_IN");
    QTest::newRow("ar_EG") << Qt::RightToLeft << QStringLiteral("ar_EG");
}

void AccessMatrixTest::theFiguresOfEveryLocaleFit()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QString, locale);
    open(direction, Appearance::Reduced, locale.toStdString());
    visitFullPages();
}

void AccessMatrixTest::open(Qt::LayoutDirection direction, Appearance::Motion motion,
                            const std::string &locale)
{
    QGuiApplication::setLayoutDirection(direction);
    m_window =
        std::make_unique<WindowFixture>(nullptr, TextLocale{.numbers = locale, .dates = locale});
    m_window->appearance().setMotion(motion);
    m_window->loadwick().window().resize(smallest);
}

void AccessMatrixTest::openWalkThrough(Qt::LayoutDirection direction, Appearance::Motion motion)
{
    QGuiApplication::setLayoutDirection(direction);
    m_window = std::make_unique<WindowFixture>(std::make_shared<FakeCompletionStore>());
    m_window->appearance().setMotion(motion);
    m_window->loadwick().window().resize(smallest);
    m_window->askForFirstLaunch();
    QTRY_VERIFY(m_window->shows(QStringLiteral("Next")));
}

void AccessMatrixTest::use(const Look &look)
{
    m_window->appearance().setScheme(look.scheme);
    m_window->appearance().setContrast(look.contrast);
}

void AccessMatrixTest::visitPages()
{
    for (const int page : {1, 2, 0}) {
        m_window->loadwick().content().setPageIndex(page);
        verify();
    }
}

// The states of the Overview during a scan, and the other pages while they are empty.
void AccessMatrixTest::visitStates()
{
    ScanModel &model = m_window->loadwick().model();
    for (const int page : {1, 2, 0}) {
        m_window->loadwick().content().setPageIndex(page);
        arrive();
        verify();
    }
    model.select(RepoSelection::fromUrl(SampleScans::excessive().repositoryPath));
    model.state().set(ScanState::scanning());
    verify();
    model.state().set(ScanState::failed(ProbeError::notAuthenticated()));
    verify();
}

void AccessMatrixTest::visitFullPages()
{
    ScanModel &model = m_window->loadwick().model();
    model.history().set(SampleHistories::ofSize(31, 5, 8));
    model.state().set(ScanState::result(SampleScans::excessive().report()));
    for (const int page : {1, 2, 0}) {
        m_window->loadwick().content().setPageIndex(page);
        arrive();
        verify();
        expandSections(*m_window->loadwick().window().contentItem());
        verify();
    }
}

void AccessMatrixTest::visitSteps()
{
    OnboardingPresenter &onboarding = m_window->loadwick().onboarding();
    for (int step = 0; step < onboarding.stepCount(); ++step) {
        while (onboarding.currentIndex() < step)
            onboarding.advance();
        arrive();
        for (const Look &look : looks) {
            use(look);
            verify();
        }
    }
}

// Words that are still fading in would escape the audit.
void AccessMatrixTest::arrive()
{
    QTest::qWait(arrivalMilliseconds);
}

// A layout takes a few frames to settle.
void AccessMatrixTest::verify()
{
    if (QTest::currentTestFailed())
        return;
    QQuickWindow &window = m_window->loadwick().window();
    QVERIFY(!window.grabWindow().isNull()); // forces a layout
    QStringList faults;
    const bool isWhole = QTest::qWaitFor(
        [&] {
            faults = LayoutAudit::faults(window);
            return faults.isEmpty() && textCount(window) >= leastTexts;
        },
        settlingMilliseconds);
    QVERIFY2(isWhole, qPrintable(faults.join(u'\n')));
}

const RegisteredTest<AccessMatrixTest> registered("AccessMatrix");

} // namespace Loadwick

#include "AccessMatrixTest.moc"
