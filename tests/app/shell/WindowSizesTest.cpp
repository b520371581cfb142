// Every page in windows, texts and sidebars of many sizes and in both directions, with scans that
// fail and end there: nothing is cut off, nothing overlaps, and headings are over their columns.
#include <array>
#include <vector>

#include <QSet>
#include <QTest>

#include "samples/SampleHistories.h"
#include "samples/SampleScans.h"
#include "shell/ContentPresenter.h"
#include "support/LayoutAudit.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"

namespace Loadwick {
namespace {

/// Fonts of 10, 12, 14 and 20 points.
constexpr std::array textScales{1.0, 1.2, 1.4, 2.0};
constexpr int height = 640;
constexpr int leastNameWidth = 100;
constexpr int settlingMilliseconds = 2'000;

struct Size
{
    double textScale;
    int width;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};
/// A compositor that tiles makes the window narrower than its minimum.
constexpr std::array allSizes{Size{1.0, 480},
                              Size{1.0, 700},
                              Size{1.0, 960},
                              Size{1.0, 1000},
                              Size{1.0, 1040},
                              Size{1.0, 1080},
                              Size{1.0, 1180},
                              Size{1.0, 2560},
                              Size{1.2, 960},
                              Size{1.2, 1100},
                              Size{1.4, 480},
                              Size{1.4, 960},
                              Size{1.4, 1080},
                              Size{1.4, 1500},
                              Size{2.0, 480},
                              Size{2.0, 700},
                              Size{2.0, 960},
                              Size{2.0, 1180},
                              Size{2.0, 1500},
                              Size{2.0, 2560},
                              Size{1.0, 480, Qt::RightToLeft},
                              Size{1.0, 960, Qt::RightToLeft},
                              Size{1.4, 1180, Qt::RightToLeft},
                              Size{2.0, 700, Qt::RightToLeft},
                              Size{2.0, 960, Qt::RightToLeft}};

enum class Sidebar
{
    usual,
    narrowest,
    widest
};

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

/// The card that holds an item, else the root of the window, which may be scrolled.
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

bool isMirrored()
{
    return QGuiApplication::layoutDirection() == Qt::RightToLeft;
}

/// Where the column of a cell begins or, if it holds figures, where it ends.
qreal edgeOf(const QQuickItem &cell)
{
    const bool holdsFigures = cell.objectName() == u"tokens" || cell.objectName() == u"share";
    return holdsFigures || isMirrored() ? rightEdge(&cell) : cell.mapToScene(QPointF()).x();
}

/// From right to left the longest figure ends outside its column.
bool mayLeaveColumn(const QQuickItem &cell)
{
    return isMirrored() && textOf(cell) == u"1,000,000,000,000,000,000";
}

} // namespace

class WindowSizesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        m_window.reset();
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }
    void theFirstLaunchFits_data();
    void theFirstLaunchFits();
    void everyPageFits_data();
    void everyPageFits();

private:
    void open(const Size &size);
    void dragSidebar(Sidebar sidebar);
    [[nodiscard]] QPoint fromSide(int distance);
    [[nodiscard]] int widestSidebar();
    [[nodiscard]] std::vector<Sidebar> sidebars();
    void choose();
    void endScan();
    void visitPages();
    void verify(const char *page);
    [[nodiscard]] QStringList faults();
    [[nodiscard]] QStringList cutWords();
    [[nodiscard]] QStringList wordsBesideCards();
    [[nodiscard]] QStringList partedColumns();
    [[nodiscard]] QStringList vanishedNames();
    [[nodiscard]] QStringList lostSidebar();
    [[nodiscard]] QQuickWindow &window() { return m_window->loadwick().window(); }

    std::unique_ptr<WindowFixture> m_window;
    QSet<QString> m_givenNames; ///< of repositories and categories; these may be elided
};

void WindowSizesTest::theFirstLaunchFits_data()
{
    QTest::addColumn<double>("textScale");
    for (const double scale : textScales)
        QTest::addRow("text of %.0f %%", 100 * scale) << scale;
}

void WindowSizesTest::theFirstLaunchFits()
{
    QFETCH(const double, textScale);
    open({textScale, 960});
    for (const Sidebar sidebar : sidebars()) {
        dragSidebar(sidebar);
        visitPages();
    }
}

void WindowSizesTest::everyPageFits_data()
{
    QTest::addColumn<Size>("size");
    for (const Size &size : allSizes)
        QTest::addRow("text of %.0f %%, %d wide%s", 100 * size.textScale, size.width,
                      size.direction == Qt::RightToLeft ? ", right to left" : "")
            << size;
}

void WindowSizesTest::everyPageFits()
{
    QFETCH(const Size, size);
    open(size);
    choose();
    for (const Sidebar sidebar : sidebars()) {
        dragSidebar(sidebar);
        endScan();
        visitPages();
        QTRY_VERIFY(visibleItems(window().contentItem(), QStringLiteral("tokens")).size() >
                    qsizetype(busyReport().rows.size()));
    }
    expandSections(*window().contentItem());
    verify("Overview with open sections");
    QGuiApplication::setLayoutDirection(isMirrored() ? Qt::LeftToRight : Qt::RightToLeft);
    verify("Overview in the other direction");
}

// At the first size, then at the real one, as the program does.
void WindowSizesTest::open(const Size &size)
{
    QGuiApplication::setLayoutDirection(size.direction);
    m_window = std::make_unique<WindowFixture>();
    m_window->appearance().setMotion(Appearance::Reduced);
    m_window->appearance().setTextScale(size.textScale);
    window().resize(size.width, height);
    QTRY_COMPARE(window().contentItem()->width(), size.width);
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
    const QQuickItem &side = shownItemOfType(window(), "Sidebar_");
    const int start = int(side.width());
    const int end = sidebar == Sidebar::narrowest ? 1 : window().width() - 1;
    QTest::mousePress(&window(), Qt::LeftButton, {}, fromSide(start));
    QTest::mouseMove(&window(), fromSide((start + end) / 2));
    QTest::mouseMove(&window(), fromSide(end));
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, fromSide(end));
    if (sidebar == Sidebar::narrowest)
        QTRY_VERIFY(side.width() < start);
    else
        QTRY_COMPARE(int(side.width()), widestSidebar());
}

/// In the middle, that far from the window's edge beside the sidebar.
QPoint WindowSizesTest::fromSide(int distance)
{
    return {isMirrored() ? window().width() - 1 - distance : distance, height / 2};
}

/// Beside the narrowest page.
int WindowSizesTest::widestSidebar()
{
    const double scale = m_window->appearance().textScale();
    return window().width() - 1 - std::max(480, qRound(340 * scale));
}

std::vector<Sidebar> WindowSizesTest::sidebars()
{
    if (widestSidebar() <= shownItemOfType(window(), "Sidebar_").width())
        return {Sidebar::usual};
    return {Sidebar::usual, Sidebar::narrowest, Sidebar::widest};
}

void WindowSizesTest::endScan()
{
    ScanModel &model = m_window->loadwick().model();
    model.state().set(ScanState::scanning());
    verify("while scanning");
    model.state().set(ScanState::failed(ProbeError::notAuthenticated()));
    verify("after a failure");
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
           partedColumns() + vanishedNames() + lostSidebar();
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
        if (card.parentItem() == nullptr)
            continue;
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
            if (std::abs(distance) > 1 && !mayLeaveColumn(*cell))
                found << QStringLiteral("\"%1\" is %2 beside its column")
                             .arg(textOf(*item))
                             .arg(distance);
        }
    }
    return found;
}

QStringList WindowSizesTest::lostSidebar()
{
    const QQuickItem &side = shownItemOfType(window(), "Sidebar_");
    const QQuickItem &scroller = shownItemOfType(window(), "SidewaysScroll_");
    const QRectF whole(0, 0, scroller.property("contentWidth").toDouble(), height);
    const auto *content = scroller.property("contentItem").value<QQuickItem *>();
    const QRectF place = side.mapRectToItem(content, QRectF(QPointF(), side.size()));
    const qreal gap = isMirrored() ? whole.right() - place.right() : place.left();
    return gap == 0 ? QStringList()
                    : QStringList(QStringLiteral("The sidebar is %1 beside its edge").arg(gap));
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
