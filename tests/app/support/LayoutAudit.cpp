#include "support/LayoutAudit.h"

#include <algorithm>
#include <set>
#include <vector>

#include <QAccessible>
#include <QQuickItem>

#include "support/VisualItems.h"

namespace Loadwick::LayoutAudit {
namespace {

constexpr double tolerance = 1.0;    // pixels: text widths are fractional, item widths are not
constexpr double leastOverlap = 3.0; // pixels; closely set lines overlap by less
constexpr int tipDistance = 4;       // ancestors that may carry an item's tool tip

bool isText(const QQuickItem &item)
{
    return item.inherits("QQuickText");
}

double number(const QQuickItem &item, const char *property)
{
    return item.property(property).toDouble();
}

QString described(const QQuickItem &item)
{
    const QString text = item.property("text").toString().left(60);
    const QString type = QString::fromLatin1(item.metaObject()->className()).section(u'_', 0, 0);
    return QStringLiteral("%1 \"%2\"").arg(type, text);
}

/// Where the item's words are painted, in its own coordinates.
QRectF words(const QQuickItem &text)
{
    const double width = number(text, "contentWidth");
    const double height = number(text, "contentHeight");
    const auto across = Qt::Alignment(text.property("effectiveHorizontalAlignment").toInt());
    const auto down = Qt::Alignment(text.property("verticalAlignment").toInt());
    const double spareWidth = text.width() - width;
    const double spareHeight = text.height() - height;
    const double left = across & Qt::AlignRight     ? spareWidth - number(text, "rightPadding")
                        : across & Qt::AlignHCenter ? spareWidth / 2
                                                    : number(text, "leftPadding");
    const double top = down & Qt::AlignBottom    ? spareHeight
                       : down & Qt::AlignVCenter ? spareHeight / 2
                                                 : number(text, "topPadding");
    return {left, top, width, height};
}

/// The part of the scene that scrolling sideways can bring into the window; without a scroller, the
/// window.
QRectF reachablePart(const QQuickItem &holder)
{
    const double width = std::max(holder.width(), number(holder, "contentWidth"));
    return holder.mapRectToScene({-number(holder, "contentX"), 0, width, holder.height()});
}

bool scrollsSideways(const QQuickItem &item)
{
    return item.property("leastWidth").isValid();
}

/// The part of an area of the window left visible by the window, wherever it is scrolled sideways,
/// and by clipping items.
QRectF shownPart(const QQuickItem &item, QRectF area)
{
    for (const QQuickItem *holder = item.parentItem(); holder; holder = holder->parentItem()) {
        if (scrollsSideways(*holder))
            return area & reachablePart(*holder);
        if (holder->clip() || holder->parentItem() == nullptr)
            area &= holder->mapRectToScene(holder->boundingRect());
    }
    return area;
}

/// Whether the words are beside what the window can show.
bool isBeside(const QQuickItem &item, const QRectF &scene)
{
    const QQuickItem *holder = &item;
    while (holder->parentItem() != nullptr && !scrollsSideways(*holder))
        holder = holder->parentItem();
    const QRectF reachable = reachablePart(*holder);
    return scene.right() < reachable.left() || scene.left() > reachable.right();
}

bool isTip(const QObject &object)
{
    const QByteArray type = object.metaObject()->className();
    return type.contains("ToolTip") || type.startsWith("HoverTip") ||
           object.objectName() == QLatin1String("tip");
}

bool hasTip(const QQuickItem &item)
{
    const QQuickItem *holder = &item;
    for (int distance = 0; holder != nullptr && distance < tipDistance; ++distance) {
        const auto &parts = holder->children();
        if (std::ranges::any_of(parts, [](const QObject *part) { return isTip(*part); }))
            return true;
        holder = holder->parentItem();
    }
    return false;
}

QStringList faultsOf(const QQuickItem &item)
{
    QStringList found;
    if (item.property("truncated").toBool() && !hasTip(item))
        found << described(item) + QStringLiteral(" is cut short without a tool tip");
    if (!isText(item))
        return found;
    // Its bounding rectangle is that of the words.
    const QRectF own =
        QRectF(QPointF(), item.size()).adjusted(-tolerance, -tolerance, tolerance, tolerance);
    const QRectF painted = words(item);
    if (!own.contains(painted))
        found << described(item) + QStringLiteral(" is larger than its item");
    const QRectF scene = item.mapRectToScene(painted);
    const QRectF shown = shownPart(item, scene);
    if (!shown.isEmpty() && shown.width() < scene.width() - tolerance)
        found << described(item) + QStringLiteral(" is cut off at a side");
    if (isBeside(item, scene))
        found << described(item) + QStringLiteral(" is beside the window");
    return found;
}

bool hasWords(const QQuickItem &item)
{
    return !item.property("text").toString().isEmpty();
}

bool isOnSheet(const QQuickItem &item)
{
    const QQuickItem *parent = item.parentItem();
    return parent != nullptr && (parent->inherits("QQuickOverlay") || isOnSheet(*parent));
}

/// A text, and where in the window its words are painted.
struct PaintedText
{
    const QQuickItem *item;
    QRectF area;
    bool isOnSheet;
};

/// A sheet covers everything below it.
bool overlap(const PaintedText &first, const PaintedText &second)
{
    const QRectF common = first.area & second.area;
    return first.isOnSheet == second.isOnSheet && common.width() >= leastOverlap &&
           common.height() >= leastOverlap;
}

std::vector<PaintedText> paintedTexts(const QQuickWindow &window)
{
    std::vector<PaintedText> texts;
    for (const QQuickItem *item : shownItems(*window.contentItem())) {
        if (isText(*item) && hasWords(*item))
            texts.push_back({.item = item,
                             .area = shownPart(*item, item->mapRectToScene(words(*item))),
                             .isOnSheet = isOnSheet(*item)});
    }
    return texts;
}

bool isLayout(const QQuickItem &item)
{
    return item.inherits("QQuickLayout") || item.inherits("QQuickBasePositioner");
}

QRectF placeInParent(const QQuickItem &item)
{
    return item.mapRectToItem(item.parentItem(), QRectF(QPointF(), item.size()));
}

/// A parent without a width or height positions its children but does not hold them.
bool isOutside(const QRectF &place, const QQuickItem &parent)
{
    const bool isBeside = place.left() < -tolerance || place.right() > parent.width() + tolerance;
    const bool isBeyond = place.top() < -tolerance || place.bottom() > parent.height() + tolerance;
    return (parent.width() > 0 && isBeside) || (parent.height() > 0 && isBeyond);
}

QStringList overlappingChildren(const QQuickItem &layout)
{
    QList<QQuickItem *> children = layout.childItems();
    children.removeIf([](const QQuickItem *child) { return !child->isVisible(); });
    QStringList found;
    for (qsizetype first = 0; first < children.size(); ++first) {
        for (qsizetype second = first + 1; second < children.size(); ++second) {
            const QRectF common =
                placeInParent(*children[first]) & placeInParent(*children[second]);
            if (common.width() > tolerance && common.height() > tolerance)
                found << described(*children[first]) + QStringLiteral(" is over its neighbour ") +
                             described(*children[second]);
        }
    }
    return found;
}

bool needsName(QAccessible::Role role)
{
    static const std::set<QAccessible::Role> spoken{
        QAccessible::Button,   QAccessible::CheckBox,  QAccessible::Chart,
        QAccessible::Dialog,   QAccessible::Document,  QAccessible::EditableText,
        QAccessible::Graphic,  QAccessible::Grouping,  QAccessible::Heading,
        QAccessible::Link,     QAccessible::List,      QAccessible::ListItem,
        QAccessible::MenuItem, QAccessible::ScrollBar, QAccessible::StaticText,
        QAccessible::Table,    QAccessible::Window,    QAccessible::ProgressBar};
    return spoken.contains(role);
}

void findUnnamed(QAccessibleInterface &parent, QStringList &found)
{
    for (int index = 0; index < parent.childCount(); ++index) {
        QAccessibleInterface *child = parent.child(index);
        if (child == nullptr || child->state().invisible)
            continue;
        if (needsName(child->role()) && child->text(QAccessible::Name).isEmpty())
            found << QStringLiteral("role %1 has no name: %2")
                         .arg(child->role())
                         .arg(QLatin1String(child->object()->metaObject()->className()));
        findUnnamed(*child, found);
    }
}

} // namespace

QStringList clippedTexts(QQuickWindow &window)
{
    QStringList found;
    for (const QQuickItem *item : shownItems(*window.contentItem())) {
        if (hasWords(*item))
            found += faultsOf(*item);
    }
    return found;
}

QStringList overlappingTexts(QQuickWindow &window)
{
    const std::vector<PaintedText> texts = paintedTexts(window);
    QStringList found;
    for (auto first = texts.cbegin(); first != texts.cend(); ++first) {
        for (auto second = std::next(first); second != texts.cend(); ++second) {
            if (overlap(*first, *second))
                found << described(*first->item) + QStringLiteral(" overlaps ") +
                             described(*second->item);
        }
    }
    return found;
}

QStringList misplacedItems(QQuickWindow &window)
{
    QStringList found;
    for (const QQuickItem *item : shownItems(*window.contentItem())) {
        const QQuickItem &parent = *item->parentItem();
        if (isLayout(*item))
            found += overlappingChildren(*item);
        const QRectF place =
            isText(*item) ? item->mapRectToItem(&parent, words(*item)) : placeInParent(*item);
        if ((isLayout(*item) || isLayout(parent)) && isOutside(place, parent))
            found << described(*item) + QStringLiteral(" extends beyond ") + described(parent);
    }
    return found;
}

QStringList unnamedControls(QQuickWindow &window)
{
    QStringList found;
    for (QQuickItem *item : shownItems(*window.contentItem())) {
        if (!item->activeFocusOnTab() || !item->isEnabled())
            continue;
        QAccessibleInterface *control = QAccessible::queryAccessibleInterface(item);
        if (control == nullptr || control->text(QAccessible::Name).isEmpty())
            found << described(*item) + QStringLiteral(" has the keyboard and no name");
    }
    findUnnamed(*QAccessible::queryAccessibleInterface(&window), found);
    return found;
}

QStringList faults(QQuickWindow &window)
{
    return clippedTexts(window) + overlappingTexts(window) + unnamedControls(window);
}

} // namespace Loadwick::LayoutAudit
