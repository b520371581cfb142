#include "pictures/PageViewport.h"

#include <algorithm>

#include <QList>
#include <QVariant>

namespace Loadwick {

namespace {

/// The first that is wide enough; lists within the page lie further inside.
QQuickItem *viewportBelow(const QQuickItem &parent, double leastWidth)
{
    for (QQuickItem *child : parent.childItems()) {
        if (!child->isVisible())
            continue;
        if (child->inherits("QQuickFlickable") && child->width() > leastWidth)
            return child;
        if (QQuickItem *found = viewportBelow(*child, leastWidth))
            return found;
    }
    return nullptr;
}

} // namespace

QQuickItem *pageViewport(const QQuickWindow &window)
{
    return viewportBelow(*window.contentItem(), window.width() / 2.0);
}

double hiddenHeight(const QQuickItem &viewport)
{
    return std::max(0.0, viewport.property("contentHeight").toDouble() - viewport.height());
}

} // namespace Loadwick
