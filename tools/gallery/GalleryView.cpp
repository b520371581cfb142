#include "GalleryView.h"

#include "charts/MarkedChart.h"
#include "theme/ApplicationStyle.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QHoverEvent>
#include <QQuickItem>

namespace Loadwick {
namespace {

// Longer than the entrance of a page.
constexpr int settlingMilliseconds = 700;

void letSettle()
{
    const QDeadlineTimer end(settlingMilliseconds);
    while (!end.hasExpired())
        QGuiApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

/// Holds the pointer over every item of that name that is, or contains, a chart.
void pointAtCharts(const QQuickItem &root)
{
    for (QQuickItem *item : root.findChildren<QQuickItem *>()) {
        const auto *holder = item;
        while (holder != nullptr && holder->objectName() != QLatin1String("pointed"))
            holder = holder->parentItem();
        if (holder == nullptr || qobject_cast<MarkedChart *>(item) == nullptr)
            continue;
        // On the ring of a donut, and on some tile or near some point of the others.
        const QPointF place(item->width() * 0.85, item->height() * 0.5);
        QHoverEvent event(QEvent::HoverMove, place, item->mapToGlobal(place), place);
        QCoreApplication::sendEvent(item, &event);
    }
}

} // namespace

GalleryView::GalleryView(Appearance::Scheme scheme)
{
    ApplicationStyle::addModulePath(m_engine);
    const int type = qmlTypeId("Loadwick", 1, 0, "Appearance");
    if (auto *appearance = m_engine.singletonInstance<Appearance *>(type))
        appearance->setScheme(scheme);
    m_window = std::make_unique<QQuickView>(&m_engine, nullptr);
    m_window->setResizeMode(QQuickView::SizeRootObjectToView);
    m_window->setSource(QUrl(QStringLiteral("qrc:/qt/qml/LoadwickGallery/Gallery.qml")));
    m_window->setTitle(scheme == Appearance::Dark ? QStringLiteral("Gallery, dark")
                                                  : QStringLiteral("Gallery, light"));
}

QImage GalleryView::picture()
{
    m_window->show();
    letSettle();
    pointAtCharts(*m_window->rootObject());
    letSettle();
    return m_window->grabWindow();
}

} // namespace Loadwick
