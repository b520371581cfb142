// Every page in windows, texts and sidebars of many sizes, with a scan that ends there: nothing is
// cut off, nothing overlaps, and headings are over their columns.
#include <array>

#include <QSet>
#include <QTest>

#include "samples/SampleHistories.h"
#include "samples/SampleScans.h"
#include "shell/ContentPresenter.h"
#include "support/LayoutAudit.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"
#include "theme/AppearanceSource.h"

namespace Loadwick {
namespace {

constexpr std::array widths{960, 1000, 1040, 1080, 1100, 1180, 1500, 2560};
constexpr std::array fontPoints{10, 12, 14};
constexpr int height = 640;
constexpr int narrowestPage = 480;
constexpr int leastNameWidth = 100;
constexpr int settlingMilliseconds = 2'000;

enum class Sidebar
{
    usual,
    narrowest,
    widest
};
constexpr std::array allSidebars{Sidebar::usual, Sidebar::narrowest, Sidebar::widest};

/// With a name and a figure of the greatest length.
ScanReport busyReport()
{
    ScanReport report = SampleScans::excessive().report();
    report.rows.push_back({.name = std::string(90, 'n'),
                           .tokens = 1'000'000'000'000'000'000,
                           .provenance = Provenance::localEstimate,
                           .ordinal = 99});
    return report;
}

QString textOf(const QQuickItem &item)
{
    return item.property("text").toString();
}

bool isText(const QQuickItem &item)
{
    return item.inherits("QQuickText") && !textOf(item).isEmpty();
}

bool isOfType(const QQuickItem &item, const char *type)
{
    return QByteArray(item.metaObject()->className()).startsWith(type);
}

QQuickItem &shownItemOfType(QQuickWindow &window, const char *type)
{
    for (QQuickItem *item : shownItems(*window.contentItem()))
        if (isOfType(*item, type))
            return *item;
    qFatal("There is no %s.", type);
}

/// The card that holds an item, else the root of the window.
QQuickItem &cardOf(QQuickItem &item)
{
    QQuickItem *holder = item.parentItem();
    while (holder->parentItem() != nullptr && !holder->property("isHovering").isValid())
        holder = holder->parentItem();
    return *holder;
}

/// The cell of a table that shows the text: cells of one column have the same name.
QQuickItem &cellOf(QQuickItem &text)
{
    return text.objectName().isEmpty() ? *text.parentItem() : text;
}

/// Where the column of a cell begins or, if it holds figures, where it ends.
qreal edgeOf(const QQuickItem &cell)
{
    const bool holdsFigures = cell.objectName() == u"tokens" || cell.objectName() == u"share";
    return holdsFigures ? rightEdge(&cell) : cell.mapToScene(QPointF()).x();
}

} // namespace

class WindowSizesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_window.reset(); }
    void theFirstLaunchFits_data();
    void theFirstLaunchFits();
    void everyPageFits_data();
    void everyPageFits();

private:
    void open(int points, int width);
    void dragSidebar(Sidebar sidebar);
    void choose();
    void endScan();
    void visitPages();
    void verify(const char *page);
    [[nodiscard]] QStringList faults();
    [[nodiscard]] QStringList cutWords();
    [[nodiscard]] QStringList wordsBesideCards();
    [[nodiscard]] QStringList partedColumns();
    [[nodiscard]] QStringList vanishedNames();
    [[nodiscard]] QQuickWindow &window() { return m_window->loadwick().window(); }

    std::unique_ptr<WindowFixture> m_window;
    QSet<QString> m_givenNames; ///< of repositories and categories; these may be elided
};

void WindowSizesTest::theFirstLaunchFits_data()
{
    QTest::addColumn<int>("points");
    for (const int points : fontPoints)
        QTest::addRow("%d points", points) << points;
}

void WindowSizesTest::theFirstLaunchFits()
{
    QFETCH(const int, points);
    open(points, widths.front());
    for (const Sidebar sidebar : allSidebars) {
        dragSidebar(sidebar);
        visitPages();
    }
}

void WindowSizesTest::everyPageFits_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<int>("width");
    for (const int points : fontPoints)
        for (const int width : widths)
            QTest::addRow("%d points, %d wide", points, width) << points << width;
}

void WindowSizesTest::everyPageFits()
{
    QFETCH(const int, points);
    QFETCH(const int, width);
    open(points, width);
    choose();
    for (const Sidebar sidebar : allSidebars) {
        dragSidebar(sidebar);
        endScan();
        visitPages();
        QVERIFY(visibleItems(window().contentItem(), QStringLiteral("tokens")).size() >
                qsizetype(busyReport().rows.size()));
    }
    expandSections(*window().contentItem());
    verify("Overview with open sections");
}

// At the first size, then at the real one, as the program does.
void WindowSizesTest::open(int points, int width)
{
    m_window = std::make_unique<WindowFixture>();
    m_window->appearance().setMotion(Appearance::Reduced);
    m_window->appearance().setTextScale(DesktopPreferences{.fontPoints = points}.textScale());
    window().resize(width, height);
}

void WindowSizesTest::choose()
{
    ScanModel &model = m_window->loadwick().model();
    model.history().set(SampleHistories::ofSize(31, 5, 8));
    model.select(RepoSelection::fromUrl(busyReport().repositoryPath));
    m_givenNames.clear();
    for (const SlabAttribution &row : busyReport().rows)
        m_givenNames.insert(QString::fromStdString(row.name));
    for (const RecordedScan &scan : model.history().get())
        m_givenNames.insert(QString::fromStdString(scan.repositoryName));
}

void WindowSizesTest::dragSidebar(Sidebar sidebar)
{
    if (sidebar == Sidebar::usual)
        return;
    constexpr int middle = height / 2;
    const QQuickItem &side = shownItemOfType(window(), "Sidebar_");
    const QPoint start(int(side.width()), middle);
    const QPoint end(sidebar == Sidebar::narrowest ? 1 : window().width() - 1, middle);
    QTest::mousePress(&window(), Qt::LeftButton, {}, start);
    QTest::mouseMove(&window(), (start + end) / 2);
    QTest::mouseMove(&window(), end);
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, end);
    if (sidebar == Sidebar::narrowest)
        QTRY_VERIFY(side.width() < start.x());
    else
        QTRY_COMPARE(int(window().width() - side.width()) - 1, narrowestPage);
}

void WindowSizesTest::endScan()
{
    ScanModel &model = m_window->loadwick().model();
    model.state().set(ScanState::scanning());
    verify("while scanning");
    // A real scan takes longer than the deletion of the previous report.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    model.state().set(ScanState::result(busyReport()));
}

void WindowSizesTest::visitPages()
{
    const std::array names{"Overview", "Trends", "Compare"};
    for (const int page : {0, 1, 2}) {
        m_window->loadwick().content().setPageIndex(page);
        verify(names.at(std::size_t(page)));
    }
    m_window->loadwick().content().setPageIndex(0);
}

// A layout takes a few frames to settle.
void WindowSizesTest::verify(const char *page)
{
    if (QTest::currentTestFailed())
        return;
    QVERIFY(!window().grabWindow().isNull()); // lays out, paints
    QStringList found;
    const auto fits = [&] { return (found = faults()).isEmpty(); };
    const bool isWhole = fits() || QTest::qWaitFor(fits, settlingMilliseconds);
    const QQuickItem &side = shownItemOfType(window(), "Sidebar_");
    found.removeDuplicates();
    QVERIFY2(isWhole, qPrintable(QStringLiteral("%1 beside a sidebar of %2:\n")
                                     .arg(QLatin1String(page))
                                     .arg(side.width()) +
                                 found.join(u'\n')));
}

QStringList WindowSizesTest::faults()
{
    return LayoutAudit::clippedTexts(window()) + LayoutAudit::overlappingTexts(window()) +
           LayoutAudit::misplacedItems(window()) + cutWords() + wordsBesideCards() +
           partedColumns() + vanishedNames();
}

// Our own words are never cut, only names and paths.
QStringList WindowSizesTest::cutWords()
{
    QStringList found;
    for (const QQuickItem *item : shownItems(*window().contentItem())) {
        if (!isText(*item) || !item->property("truncated").toBool())
            continue;
        const QString text = textOf(*item).remove(QChar(0x200E));
        if (!text.startsWith(u'/') && !m_givenNames.contains(text))
            found << QStringLiteral("\"%1\" is cut short").arg(text);
    }
    return found;
}

QStringList WindowSizesTest::wordsBesideCards()
{
    QStringList found;
    for (QQuickItem *item : shownItems(*window().contentItem())) {
        const QQuickItem &card = cardOf(*item);
        const QRectF place = item->mapRectToItem(&card, QRectF(QPointF(), item->size()));
        if (isText(*item) && (place.left() < 0 || place.right() > card.width()))
            found << QStringLiteral("\"%1\" is partly beside its card").arg(textOf(*item));
    }
    return found;
}

QStringList WindowSizesTest::partedColumns()
{
    static const QSet<QString> headings{QStringLiteral("Category"), QStringLiteral("Tokens"),
                                        QStringLiteral("Share"), QStringLiteral("Source"),
                                        QStringLiteral("% of total")};
    QStringList found;
    for (QQuickItem *item : shownItems(*window().contentItem())) {
        if (!isText(*item) || !headings.contains(textOf(*item)))
            continue;
        const QQuickItem &heading = cellOf(*item);
        for (const QQuickItem *cell : visibleItems(&cardOf(*item), heading.objectName())) {
            const qreal distance = edgeOf(*cell) - edgeOf(heading);
            if (std::abs(distance) > 1)
                found << QStringLiteral("\"%1\" is %2 beside its column")
                             .arg(textOf(*item))
                             .arg(distance);
        }
    }
    return found;
}

QStringList WindowSizesTest::vanishedNames()
{
    QStringList found;
    for (const QQuickItem *item : visibleItems(window().contentItem(), QStringLiteral("name"))) {
        if (item->width() < leastNameWidth)
            found << QStringLiteral("\"%1\" has %2 pixels").arg(textOf(*item)).arg(item->width());
    }
    return found;
}

const RegisteredTest<WindowSizesTest> registered("WindowSizes");

} // namespace Loadwick

#include "WindowSizesTest.moc"
