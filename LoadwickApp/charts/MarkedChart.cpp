#include "charts/MarkedChart.h"

#include <algorithm>
#include <optional>

#include <QHoverEvent>
#include <QKeyEvent>

namespace Loadwick {
namespace {

/// The mark that a key moves to from `chosen`, -1 for none; nothing for any other key.
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

MarkedChart::MarkedChart(QQuickItem *parent) : PainterItem(parent)
{
    setAcceptHoverEvents(true);
    setActiveFocusOnTab(true);
    connect(this, &MarkedChart::currentMarkChanged, this, [this] { update(); });
}

int MarkedChart::currentMark() const noexcept
{
    return m_pointed >= 0 ? m_pointed : m_chosen;
}

QString MarkedChart::markPosition() const
{
    return currentMark() < 0 ? QString() : tr("%1 of %2").arg(currentMark() + 1).arg(markCount());
}

void MarkedChart::forgetMarks()
{
    setMarks(-1, -1);
    update();
}

// Ignored, so that the event also reaches the card that holds the chart.
void MarkedChart::hoverEnterEvent(QHoverEvent *event)
{
    hoverMoveEvent(event);
}

void MarkedChart::hoverMoveEvent(QHoverEvent *event)
{
    setMarks(markAt(event->position()), m_chosen);
    event->ignore();
}

void MarkedChart::hoverLeaveEvent(QHoverEvent *)
{
    setMarks(-1, m_chosen);
}

void MarkedChart::keyPressEvent(QKeyEvent *event)
{
    const std::optional<int> mark =
        markCount() > 0 ? markAfterKey(event->key(), m_chosen, markCount()) : std::nullopt;
    event->setAccepted(mark.has_value());
    if (!mark)
        return;
    setMarks(-1, *mark); // A resting pointer does not override the keys.
    if (*mark >= 0)
        Q_EMIT walked();
}

void MarkedChart::focusOutEvent(QFocusEvent *event)
{
    setMarks(m_pointed, -1);
    PainterItem::focusOutEvent(event);
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

#include "moc_MarkedChart.cpp"
