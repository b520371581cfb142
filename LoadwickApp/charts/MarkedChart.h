#pragma once

#include <QtQml/qqmlregistration.h>

#include "base/PainterItem.h"

namespace Loadwick {

/// A painted chart made of marks (slices, tiles, points), of which one may be current: the one
/// under the pointer, or the one chosen by the arrow keys while the chart has the focus, whichever
/// came last. The keyboard thus reaches whatever the pointer reaches.
///
/// Arrow keys move to the next or previous mark and stop at the ends, Home and End jump there, and
/// Escape clears it. The first key chooses the first mark, or the last if it points backwards.
class MarkedChart : public Loadwick::PainterItem
{
    Q_OBJECT
    QML_ANONYMOUS
    /// The index of the current mark, -1 while there is none.
    Q_PROPERTY(int currentMark READ currentMark NOTIFY currentMarkChanged)
    Q_PROPERTY(QString markPosition READ markPosition NOTIFY currentMarkChanged)

public:
    explicit MarkedChart(QQuickItem *parent = nullptr);

    [[nodiscard]] int currentMark() const noexcept;
    /// "2 of 8"; empty without a current mark.
    [[nodiscard]] QString markPosition() const;

    /// The mark at a point of the item, -1 where there is none.
    Q_INVOKABLE [[nodiscard]] int markUnder(const QPointF &point) const { return markAt(point); }

Q_SIGNALS:
    void currentMarkChanged();
    /// A key has chosen the current mark, perhaps again. A screen reader does not notice by itself.
    void walked();

protected:
    [[nodiscard]] virtual int markCount() const = 0;
    [[nodiscard]] virtual int markAt(const QPointF &point) const = 0;

    /// Call when the marks have changed; clears the current mark.
    void forgetMarks();

    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void setMarks(int pointed, int chosen);

    int m_pointed = -1;
    int m_chosen = -1;
};

} // namespace Loadwick
