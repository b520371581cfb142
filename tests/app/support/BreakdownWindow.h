#pragma once

#include <memory>

#include <QList>
#include <QStringList>

#include "overview/BreakdownPresenter.h"
#include "theme/Appearance.h"

class QQmlEngine;
class QQuickItem;
class QQuickWindow;

namespace Loadwick {

/// The breakdown of a report on a scrolling page 600 high, shown and ready for keys.
class BreakdownWindow
{
public:
    explicit BreakdownWindow(const ScanReport &report, int width = 700,
                             Appearance::Motion motion = Appearance::Reduced);
    ~BreakdownWindow();

    BreakdownWindow(const BreakdownWindow &) = delete;
    BreakdownWindow &operator=(const BreakdownWindow &) = delete;

    [[nodiscard]] BreakdownPresenter &breakdown() noexcept { return *m_breakdown; }
    [[nodiscard]] QQuickWindow &window() noexcept { return *m_window; }

    /// Lays everything out.
    void settle();
    void press(Qt::Key key);
    void pointAt(const QPointF &scenePoint);

    /// The visible items of that object name, in the order of the page.
    [[nodiscard]] QList<QQuickItem *> items(const QString &name) const;
    /// The first of them; aborts if there is none.
    [[nodiscard]] QQuickItem &item(const QString &name) const;
    /// The visible labels with text, in page order, and their texts.
    [[nodiscard]] QList<QQuickItem *> labels() const;
    [[nodiscard]] QStringList texts() const;

private:
    std::unique_ptr<BreakdownPresenter> m_breakdown;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};

} // namespace Loadwick
