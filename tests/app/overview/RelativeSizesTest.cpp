// The treemap and the words on its current tile, on the scrolling page of the real window.
#include <QQuickItem>
#include <QTest>

#include "samples/SampleScans.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"

namespace Loadwick {
namespace {

QRectF inScene(const QQuickItem &item)
{
    return item.mapRectToScene(QRectF(QPointF(), item.size()));
}

QQuickItem &viewportOf(QQuickItem &item)
{
    QQuickItem *holder = &item;
    while (!holder->inherits("QQuickFlickable"))
        holder = holder->parentItem();
    return *holder;
}

} // namespace

class RelativeSizesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_window.reset(); }

    void theWordsStayInViewWithTheMap_data()
    {
        QTest::addColumn<double>("textScale");
        QTest::newRow("beside the map") << 1.0;
        QTest::newRow("below the map") << 1.4;
    }

    void theWordsStayInViewWithTheMap()
    {
        QFETCH(const double, textScale);
        open(textScale);
        QQuickWindow &window = m_window->loadwick().window();
        QQuickItem &map = only(window, "map");
        for (const double part : {0.1, 0.5, 0.9}) {
            QTRY_VERIFY((scroll(map, part), areReadable(window)));
            QTRY_VERIFY((scroll(map, part - 1), areReadable(window)));
        }
    }

    void theWordsFollowWhenSomethingAboveOpens()
    {
        open(1.0);
        QQuickWindow &window = m_window->loadwick().window();
        QQuickItem &map = only(window, "map");
        QTRY_VERIFY((scroll(map, 0.5), areReadable(window)));
        const double before = inScene(map).top();
        m_window->pressButton(QStringLiteral("Why these bands?"));
        QTRY_VERIFY(inScene(map).top() > before);
        QTRY_VERIFY(areReadable(window));
    }

private:
    /// A report, and the keyboard on the first tile.
    void open(double textScale)
    {
        m_window = std::make_unique<WindowFixture>();
        m_window->appearance().setMotion(Appearance::Reduced);
        m_window->appearance().setTextScale(textScale);
        QQuickWindow &window = m_window->loadwick().window();
        window.resize(960, 640);
        const ScanReport report = SampleScans::excessive().report();
        m_window->loadwick().model().state().set(ScanState::result(report));
        (void)window.grabWindow();
        only(window, "map").forceActiveFocus(Qt::TabFocusReason);
        m_window->press(Qt::Key_Home);
    }

    /// Scrolls that part of the map out of sight at the top, or at the bottom if it is negative.
    static void scroll(QQuickItem &map, double part)
    {
        QQuickItem &viewport = viewportOf(map);
        const double top = inScene(map).top() - inScene(viewport).top();
        const double wanted =
            -part * map.height() + (part < 0 ? viewport.height() - map.height() : 0);
        viewport.setProperty("contentY", viewport.property("contentY").toDouble() + top - wanted);
    }

    /// In view, and beside the map.
    static bool areReadable(QQuickWindow &window)
    {
        QQuickItem &map = only(window, "map");
        const QRectF words = inScene(only(window, "panel"));
        return inScene(viewportOf(map)).contains(words) && !words.intersects(inScene(map));
    }

    static QQuickItem &only(QQuickWindow &window, const char *name)
    {
        const auto found = visibleItems(window.contentItem(), QLatin1String(name));
        if (found.size() != 1)
            qFatal("%s is there %d times.", name, int(found.size()));
        return *found.first();
    }

    std::unique_ptr<WindowFixture> m_window;
};

const RegisteredTest<RelativeSizesTest> registered("RelativeSizes");

} // namespace Loadwick

#include "RelativeSizesTest.moc"
