#include "pictures/PageViewport.h"

#include <algorithm>

#include <QList>
#include <QVariant>

namespace Loadwick {

namespace {

QQuickItem *largestBelow(const QQuickItem &parent, QQuickItem *largest)
{
    for (QQuickItem *child : parent.childItems()) {
        if (!child->isVisible())
            continue;
        if (child->inherits("QQuickFlickable") &&
            (largest == nullptr || child->height() > largest->height()))
            largest = child;
        largest = largestBelow(*child, largest);
    }
    return largest;
}

} // namespace

QQuickItem *pageViewport(const QQuickWindow &window)
{
    QQuickItem *found = largestBelow(*window.contentItem(), nullptr);
    return found != nullptr && found->width() > window.width() / 2.0 ? found : nullptr;
}

double hiddenHeight(const QQuickItem &viewport)
{
    return std::max(0.0, viewport.property("contentHeight").toDouble() - viewport.height());
}

} // namespace Loadwick
