#include "charts/MarkedChart.h"

#include <algorithm>
#include <optional>

#include <QHoverEvent>
#include <QKeyEvent>

namespace Loadwick {
namespace {

/// Where a key leads from the chosen mark, -1 for none; nothing for a key that leads nowhere.
std::optional<int> markAfterKey(int key, int chosen, int count)
{
    switch (key) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        return std::min(chosen + 1, count - 1);
    case Qt::Key_Left:
    case Qt::Key_Up:
        return chosen < 0 ? count - 1 : std::max(chosen - 1, 0);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return count - 1;
    case Qt::Key_Escape:
        return chosen < 0 ? std::optional<int>() : -1;
    default:
        return {};
    }
}

} // namespace

MarkedChart::MarkedChart(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAcceptHoverEvents(true);
    setActiveFocusOnTab(true);
    setAntialiasing(true);
    connect(this, &MarkedChart::currentMarkChanged, this, [this] { update(); });
}

int MarkedChart::currentMark() const noexcept
{
    return m_pointed >= 0 ? m_pointed : m_chosen;
}

void MarkedChart::forgetMarks()
{
    setMarks(-1, -1);
    update();
}

// An accepted event would not reach the card that holds the chart, which answers the pointer too.
void MarkedChart::hoverEnterEvent(QHoverEvent *event)
{
    setPointed(markAt(event->position()));
    event->ignore();
}

void MarkedChart::hoverMoveEvent(QHoverEvent *event)
{
    setPointed(markAt(event->position()));
    event->ignore();
}

void MarkedChart::hoverLeaveEvent(QHoverEvent *)
{
    setPointed(-1);
}

void MarkedChart::keyPressEvent(QKeyEvent *event)
{
    const std::optional<int> mark =
        markCount() > 0 ? markAfterKey(event->key(), m_chosen, markCount()) : std::nullopt;
    event->setAccepted(mark.has_value());
    if (mark)
        setChosen(*mark);
}

void MarkedChart::focusOutEvent(QFocusEvent *event)
{
    setMarks(m_pointed, -1);
    QQuickPaintedItem::focusOutEvent(event);
}

void MarkedChart::setPointed(int mark)
{
    setMarks(mark, m_chosen);
}

// The later of the two wins: a pointer that lies still does not hide what the keys do.
void MarkedChart::setChosen(int mark)
{
    setMarks(-1, mark);
}

void MarkedChart::setMarks(int pointed, int chosen)
{
    const int before = currentMark();
    m_pointed = pointed;
    m_chosen = chosen;
    if (currentMark() != before)
        Q_EMIT currentMarkChanged();
}

} // namespace Loadwick
