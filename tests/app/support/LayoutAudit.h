#pragma once

#include <QQuickWindow>
#include <QStringList>

namespace Loadwick {

/// Looks for unreadable or unnamed items in a window as currently laid out and visible. Each result
/// has one line per fault and is empty if there are none.
namespace LayoutAudit {

/// Texts that overflow their item, lie outside the window or under a clipping edge, or are elided
/// without a tool tip that holds the rest.
[[nodiscard]] QStringList clippedTexts(QQuickWindow &window);

/// Texts that are painted over each other.
[[nodiscard]] QStringList overlappingTexts(QQuickWindow &window);

/// Layouts and their children (of a text, its words) that extend beyond their parent, and children
/// of a layout that cover each other.
[[nodiscard]] QStringList misplacedItems(QQuickWindow &window);

/// Focusable or accessible items without an accessible name.
[[nodiscard]] QStringList unnamedControls(QQuickWindow &window);

/// All of the above except misplaced items.
[[nodiscard]] QStringList faults(QQuickWindow &window);

} // namespace LayoutAudit
} // namespace Loadwick
