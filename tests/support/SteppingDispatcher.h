#pragma once

#include <cstddef>
#include <deque>

#include "model/TaskDispatcher.h"

namespace Loadwick {

/// Runs nothing by itself: a test steps through the background tasks and the posted ones in the
/// order that it wants to see. Belongs to one thread.
class SteppingDispatcher : public TaskDispatcher
{
public:
    void runInBackground(Task task) override;
    void postToInterface(Task task) override;

    /// From now on no background task can be started, as if threads had run out.
    void refuseBackground() noexcept { m_refusesBackground = true; }

    /// Threads are to be had again.
    void allowBackground() noexcept { m_refusesBackground = false; }

    [[nodiscard]] std::size_t backgroundCount() const noexcept { return m_background.size(); }
    [[nodiscard]] std::size_t postedCount() const noexcept { return m_posted.size(); }

    /// Run the oldest task of their kind, and end its life. Without one the test program ends.
    void runBackground();
    void runPosted();

    /// One background task and the outcome that it posts.
    void step();

    /// Steps until nothing is left.
    void runAll();

    /// Ends the life of all tasks unrun. Tasks own this dispatcher, so one that is left in it keeps
    /// both alive for ever.
    void discardAll();

private:
    std::deque<Task> m_background;
    std::deque<Task> m_posted;
    bool m_refusesBackground = false;
};

} // namespace Loadwick
