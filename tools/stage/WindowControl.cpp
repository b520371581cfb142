#include "stage/WindowControl.h"

#include <algorithm>

#include <QAccessible>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QQmlEngine>

#include "text/Fatal.h"

namespace Loadwick::WindowControl {

namespace {

constexpr int limitMilliseconds = 30'000;
constexpr int settlingMilliseconds = 120; // some frames: layouts take up to three to settle
constexpr int stepMilliseconds = 10;

void runEvents()
{
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents,
                                    stepMilliseconds);
    // Outside a running loop deferred deletions, and so all pages left, would pile up.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool canBePressed(QAccessibleInterface &item)
{
    return item.role() == QAccessible::Button && !item.state().disabled &&
           !item.state().invisible && item.actionInterface() != nullptr;
}

QAccessibleInterface *findButton(QAccessibleInterface &parent, const QString &name)
{
    for (int index = 0; index < parent.childCount(); ++index) {
        QAccessibleInterface *child = parent.child(index);
        if (child == nullptr)
            continue;
        if (canBePressed(*child) && child->text(QAccessible::Name) == name)
            return child;
        if (QAccessibleInterface *found = findButton(*child, name))
            return found;
    }
    return nullptr;
}

/// Of the first scroll view that is wide enough.
QQuickItem *viewportBelow(const QQuickItem &parent, double leastWidth)
{
    for (QQuickItem *child : parent.childItems()) {
        if (!child->isVisible())
            continue;
        if (child->inherits("QQuickScrollView") && child->width() > leastWidth)
            return child->property("contentItem").value<QQuickItem *>();
        if (QQuickItem *found = viewportBelow(*child, leastWidth))
            return found;
    }
    return nullptr;
}

} // namespace

void waitUntil(const std::string &what, const std::function<bool()> &isReached)
{
    const QDeadlineTimer limit(limitMilliseconds);
    while (!isReached()) {
        if (limit.hasExpired())
            fatalError("timed out waiting for " + what);
        runEvents();
    }
}

void settle()
{
    const QDeadlineTimer end(settlingMilliseconds);
    while (!end.hasExpired())
        runEvents();
}

Appearance &appearanceOf(QQuickWindow &window)
{
    QQmlEngine *engine = qmlEngine(&window);
    const int type = qmlTypeId("Loadwick", 1, 0, "Appearance");
    auto *appearance = engine == nullptr ? nullptr : engine->singletonInstance<Appearance *>(type);
    if (appearance == nullptr)
        fatalError("the window has no appearance");
    return *appearance;
}

bool pressButton(QWindow &window, const QString &name)
{
    QAccessible::setActive(true);
    QAccessibleInterface *root = QAccessible::queryAccessibleInterface(&window);
    QAccessibleInterface *button = root == nullptr ? nullptr : findButton(*root, name);
    if (button == nullptr)
        return false;
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    return true;
}

QQuickItem *pageViewport(const QQuickWindow &window)
{
    return viewportBelow(*window.contentItem(), window.width() / 2.0);
}

double hiddenHeight(const QQuickItem &viewport)
{
    return std::max(0.0, viewport.property("contentHeight").toDouble() - viewport.height());
}

} // namespace Loadwick::WindowControl
