#include "GalleryView.h"

#include "theme/ApplicationStyle.h"

#include <QDeadlineTimer>
#include <QGuiApplication>

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
    return m_window->grabWindow();
}

} // namespace Loadwick
