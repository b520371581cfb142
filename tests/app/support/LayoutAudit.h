#pragma once

#include <QQuickWindow>
#include <QStringList>

namespace Loadwick {

/// Looks for what nobody could read or name in a window as it is laid out and shown now. Each
/// answer has one line per fault and is empty where all is well.
namespace LayoutAudit {

/// Texts that reach beyond their own item, that lie beside the window or under the edge of what
/// clips them, or that are cut short with no tool tip to tell the rest.
[[nodiscard]] QStringList clippedTexts(QQuickWindow &window);

/// Texts that are painted over each other.
[[nodiscard]] QStringList overlappingTexts(QQuickWindow &window);

/// What the keyboard or assistive technology reaches and that has no name to be called by.
[[nodiscard]] QStringList unnamedControls(QQuickWindow &window);

/// All of the above.
[[nodiscard]] QStringList faults(QQuickWindow &window);

} // namespace LayoutAudit
} // namespace Loadwick
