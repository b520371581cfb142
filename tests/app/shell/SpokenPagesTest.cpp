// The pages as a screen reader and the clipboard get them, in the real window.
#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include "onboarding/OnboardingPresenter.h"
#include "samples/SampleHistories.h"
#include "samples/SampleScans.h"
#include "shell/ContentPresenter.h"
#include "support/ScanFakes.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"

namespace Loadwick {
namespace {

constexpr qsizetype listCount = 11; // breakdown, four of files, runs, leaderboard, cards, combined

QString nameOf(QObject *item)
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
    return accessible == nullptr ? QString() : accessible->text(QAccessible::Name);
}

QStringList headingsBelow(QAccessibleInterface &parent)
{
    QStringList found;
    for (int index = 0; index < parent.childCount(); ++index) {
        QAccessibleInterface *child = parent.child(index);
        if (child == nullptr || child->state().invisible)
            continue;
        if (child->role() == QAccessible::Heading)
            found << child->text(QAccessible::Name);
        found += headingsBelow(*child);
    }
    return found;
}

bool isList(const QQuickItem &item)
{
    return item.property("markedIndex").isValid() && item.property("count").toInt() > 0;
}

/// The words that a row shows: those of its labels, and those that it paints.
QStringList shownWords(const QQuickItem &row)
{
    QStringList texts{row.property("name").toString(), row.property("value").toString()};
    for (const QQuickItem *item : shownItems(row))
        texts << item->property("text").toString();
    return texts.join(u' ').remove(QChar(0x200E)).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

class SpokenPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }
    void init();
    void cleanup() { m_window.reset(); }
    void aFocusedRowSaysEverythingThatItShows();
    void everyListCopiesWhatItsRowSays();
    void everyTitleOfAPageIsAHeading_data();
    void everyTitleOfAPageIsAHeading();
    void everyTitleOfTheWalkThroughIsAHeading();
    void theTitleOfEveryStateIsAHeading();

private:
    void verifyHeadings(const QStringList &titles);
    [[nodiscard]] QQuickWindow &window() { return m_window->loadwick().window(); }
    void show(int page);
    /// The lists of all pages; `visit` runs while the list's page is shown and its first row has
    /// the focus.
    void visitLists(const std::function<void(QQuickItem &list, QQuickItem &row)> &visit);

    std::unique_ptr<WindowFixture> m_window;
};

void SpokenPagesTest::init()
{
    m_window = std::make_unique<WindowFixture>();
    m_window->appearance().setMotion(Appearance::Reduced); // pages are there at once
    ScanModel &model = m_window->loadwick().model();
    model.history().set(SampleHistories::ofSize(31, 5, 3));
    model.state().set(ScanState::result(SampleScans::excessive().report()));
}

void SpokenPagesTest::show(int page)
{
    m_window->loadwick().content().setPageIndex(page);
    QVERIFY(!window().grabWindow().isNull()); // lays out
}

void SpokenPagesTest::visitLists(
    const std::function<void(QQuickItem &list, QQuickItem &row)> &visit)
{
    qsizetype visited = 0;
    for (int page = 0; page < 3; ++page) {
        show(page);
        QList<QQuickItem *> lists = shownItems(*window().contentItem());
        lists.removeIf([](const QQuickItem *item) { return !isList(*item); });
        for (QQuickItem *list : lists) {
            list->forceActiveFocus(Qt::TabFocusReason);
            visit(*list, *window().activeFocusItem());
            ++visited;
        }
    }
    QVERIFY2(visited >= listCount, qPrintable(QString::number(visited)));
}

void SpokenPagesTest::aFocusedRowSaysEverythingThatItShows()
{
    visitLists([](const QQuickItem &, QQuickItem &row) {
        const QString name = nameOf(&row);
        for (const QString &word : shownWords(row))
            QVERIFY2(name.contains(word), qPrintable(name + QStringLiteral(" lacks ") + word));
    });
}

void SpokenPagesTest::everyListCopiesWhatItsRowSays()
{
    visitLists([this](QQuickItem &list, QQuickItem &row) {
        QGuiApplication::clipboard()->clear();
        m_window->press(Qt::Key_C, Qt::ControlModifier);
        const QString copied = QGuiApplication::clipboard()->text();
        QVERIFY2(!copied.isEmpty(), qPrintable(nameOf(&list)));
        QVERIFY2(nameOf(&row).contains(copied), qPrintable(copied));
    });
}

void SpokenPagesTest::verifyHeadings(const QStringList &titles)
{
    const QStringList headings = headingsBelow(*QAccessible::queryAccessibleInterface(&window()));
    for (const QString &title : titles)
        QVERIFY2(headings.contains(title), qPrintable(title));
}

void SpokenPagesTest::everyTitleOfAPageIsAHeading_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("titles");
    QTest::newRow("Overview") << 0
                              << QStringLiteral(
                                     "Pages|Overview|Excessive startup context|Context headroom|"
                                     "Estimated breakdown by category|All instruction files|"
                                     "Relative size|Repository instructions|"
                                     "Inherited project instructions|Personal instructions|"
                                     "Largest instruction files|Weekly usage|Session details|"
                                     "Full report");
    QTest::newRow("Trends") << 1
                            << QStringLiteral("Pages|Trends|Startup tokens per scan|"
                                              "Where this repository landed|Previous runs|"
                                              "Recorded data");
    QTest::newRow("Compare") << 2
                             << QStringLiteral("Pages|Compare|Leaderboard|Category for category|"
                                               "How to read this");
}

void SpokenPagesTest::everyTitleOfAPageIsAHeading()
{
    QFETCH(const int, page);
    QFETCH(const QString, titles);
    show(page);
    verifyHeadings(titles.split(u'|'));
    if (page != 1)
        return;
    m_window->pressButton(QStringLiteral("Clear Recorded Data…"));
    QTRY_VERIFY(m_window->shows(QStringLiteral("Delete every recorded scan?")));
    verifyHeadings({QStringLiteral("Delete every recorded scan?")});
}

void SpokenPagesTest::everyTitleOfTheWalkThroughIsAHeading()
{
    m_window = std::make_unique<WindowFixture>(std::make_shared<FakeCompletionStore>());
    m_window->appearance().setMotion(Appearance::Reduced);
    m_window->askForFirstLaunch();
    QTRY_VERIFY(m_window->shows(QStringLiteral("Next")));
    OnboardingPresenter &onboarding = m_window->loadwick().onboarding();
    for (int step = 0; step < onboarding.stepCount(); ++step) {
        const QString title = onboarding.step(step)->title();
        QTRY_VERIFY(m_window->shows(title));
        verifyHeadings({title});
        if (step + 1 < onboarding.stepCount())
            onboarding.advance();
    }
}

void SpokenPagesTest::theTitleOfEveryStateIsAHeading()
{
    ScanModel &model = m_window->loadwick().model();
    model.history().set({});
    show(2);
    verifyHeadings({QStringLiteral("No recorded scans yet")});
    model.history().set(SampleHistories::ofSize(1, 1, 1));
    show(1);
    verifyHeadings({QStringLiteral("One scan recorded")});
    show(0);
    model.state().set(ScanState::idle());
    verifyHeadings({QStringLiteral("Start a context scan")});
    model.state().set(ScanState::scanning());
    verifyHeadings({QStringLiteral("Scanning repository")});
    model.state().set(ScanState::failed(ProbeError::timedOut()));
    verifyHeadings({QString::fromStdString(ProbeError::timedOut().headline())});
}

const RegisteredTest<SpokenPagesTest> registered("SpokenPages");

} // namespace Loadwick

#include "SpokenPagesTest.moc"
