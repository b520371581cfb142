#include <algorithm>
#include <memory>

#include <QApplication>
#include <QHoverEvent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>

#include "charts/MarkedChart.h"
#include "shell/ApplicationSetup.h"
#include "stage/Camera.h"
#include "stage/FrameMeter.h"
#include "stage/Subcommand.h"
#include "theme/Appearance.h"
#include "theme/ApplicationStyle.h"

namespace Loadwick {

namespace {

constexpr FrameMeter::Milliseconds pageEntrance{700}; // longer than the entrance of a page
constexpr int greatestWindowHeight = 900; // of a window; the page is longer than a screen

bool isPointedAt(const QQuickItem *item)
{
    while (item != nullptr && item->objectName() != QLatin1String("pointed"))
        item = item->parentItem();
    return item != nullptr;
}

/// Holds the pointer over every chart inside an item named "pointed".
void pointAtCharts(const QQuickItem &root)
{
    for (QQuickItem *item : root.findChildren<QQuickItem *>()) {
        if (qobject_cast<MarkedChart *>(item) == nullptr || !isPointedAt(item))
            continue;
        // On the ring of a donut, and on some tile or near some point of the others.
        const QPointF position(item->width() * 0.85, item->height() * 0.5);
        QHoverEvent event(QEvent::HoverMove, position, item->mapToGlobal(position), position);
        QCoreApplication::sendEvent(item, &event);
    }
}

/// The gallery in one scheme. Each has its own engine, and so its own theme.
class GalleryView
{
public:
    explicit GalleryView(Appearance::Scheme scheme)
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

    [[nodiscard]] QQuickView &window() { return *m_window; }

    void showAt(int x)
    {
        m_window->setPosition(x, 40);
        m_window->resize(m_window->width(), std::min(m_window->height(), greatestWindowHeight));
        m_window->show();
    }

    /// The window once all entrances have ended.
    [[nodiscard]] QImage picture()
    {
        m_window->show();
        FrameMeter::run(pageEntrance);
        pointAtCharts(*m_window->rootObject());
        FrameMeter::run(pageEntrance);
        return m_window->grabWindow();
    }

private:
    QQmlEngine m_engine;
    std::unique_ptr<QQuickView> m_window;
};

int openWindows(const Invocation &invocation)
{
    ApplicationSetup::prepare();
    QApplication application(invocation.argc, invocation.argv);
    ApplicationSetup::apply();
    ApplicationStyle::applyFont(application);
    GalleryView light(Appearance::Light);
    GalleryView dark(Appearance::Dark);
    light.showAt(20);
    dark.showAt(40 + light.window().width());
    return QApplication::exec();
}

int writePictures(const PictureFolder &folder)
{
    folder.save(GalleryView(Appearance::Light).picture(), "gallery-light");
    folder.save(GalleryView(Appearance::Dark).picture(), "gallery-dark");
    return 0;
}

} // namespace

int gallery(const Invocation &invocation)
{
    if (invocation.words.empty())
        return openWindows(invocation);
    return runOffScreen(invocation,
                        [&] { return writePictures(PictureFolder(invocation.words.front())); });
}

} // namespace Loadwick
