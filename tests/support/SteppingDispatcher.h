#pragma once

#include <cstddef>
#include <deque>

#include "model/TaskDispatcher.h"

namespace Loadwick {

/// Runs only what a test steps: background and posted tasks, in an order of its choice. Belongs to
/// one thread.
class SteppingDispatcher : public TaskDispatcher
{
public:
    void runInBackground(Task task) override;
    void postToInterface(Task task) override;

    /// Refuses background tasks, as if threads had run out.
    void refuseBackground() noexcept { m_refusesBackground = true; }

    /// Accepts background tasks again.
    void allowBackground() noexcept { m_refusesBackground = false; }

    [[nodiscard]] std::size_t backgroundCount() const noexcept { return m_background.size(); }
    [[nodiscard]] std::size_t postedCount() const noexcept { return m_posted.size(); }

    /// Run and destroy the oldest task of their kind. Without one the test program ends.
    void runBackground();
    void runPosted();

    /// Runs one background task and the outcome that it posts.
    void step();

    /// The same for the task that came last: threads may end in any order.
    void stepNewest();

    /// Steps until nothing is left.
    void runAll();

    /// Destroys all tasks unrun. Tasks own this dispatcher, so a task that stays in it leaks both.
    void discardAll();

private:
    std::deque<Task> m_background;
    std::deque<Task> m_posted;
    bool m_refusesBackground = false;
};

} // namespace Loadwick
