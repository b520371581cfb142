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
    void theWordsStayInViewWithTheMap_data()
    {
        QTest::addColumn<double>("textScale");
        QTest::newRow("beside the map") << 1.0;
        QTest::newRow("below the map") << 1.4;
    }

    void theWordsStayInViewWithTheMap()
    {
        QFETCH(const double, textScale);
        WindowFixture shown;
        shown.appearance().setMotion(Appearance::Reduced);
        shown.appearance().setTextScale(textScale);
        QQuickWindow &window = shown.loadwick().window();
        window.resize(960, 640);
        shown.loadwick().model().state().set(ScanState::result(SampleScans::excessive().report()));
        (void)window.grabWindow();
        QQuickItem &map = only(window, "map");
        map.forceActiveFocus(Qt::TabFocusReason);
        shown.press(Qt::Key_Home);
        for (const double part : {0.1, 0.5, 0.9}) {
            QTRY_VERIFY((scroll(map, part), areReadable(window)));
            QTRY_VERIFY((scroll(map, part - 1), areReadable(window)));
        }
    }

private:
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
};

const RegisteredTest<RelativeSizesTest> registered("RelativeSizes");

} // namespace Loadwick

#include "RelativeSizesTest.moc"
