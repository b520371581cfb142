#include "demo/window/WindowAppearance.h"

#include <QQmlEngine>

#include "text/Fatal.h"

namespace Loadwick {

Appearance &appearanceOf(QQuickWindow &window)
{
    QQmlEngine *engine = qmlEngine(&window);
    const int type = qmlTypeId("Loadwick", 1, 0, "Appearance");
    auto *appearance = engine == nullptr ? nullptr : engine->singletonInstance<Appearance *>(type);
    if (appearance == nullptr)
        fatalError("the window has no appearance");
    return *appearance;
}

} // namespace Loadwick
