#include "support/SteppingDispatcher.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "text/Fatal.h"

namespace Loadwick {

namespace {

void runFirst(std::deque<TaskDispatcher::Task> &tasks)
{
    if (tasks.empty())
        fatalError("a test runs a task that does not exist");
    const TaskDispatcher::Task task = std::move(tasks.front());
    tasks.pop_front();
    task();
}

} // namespace

void SteppingDispatcher::runInBackground(Task task)
{
    if (m_refusesBackground)
        throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again));
    m_background.push_back(std::move(task));
}

void SteppingDispatcher::postToInterface(Task task)
{
    m_posted.push_back(std::move(task));
}

void SteppingDispatcher::runBackground()
{
    runFirst(m_background);
}

void SteppingDispatcher::runPosted()
{
    runFirst(m_posted);
}

void SteppingDispatcher::step()
{
    runBackground();
    runPosted();
}

void SteppingDispatcher::stepNewest()
{
    if (!m_background.empty())
        std::rotate(m_background.begin(), m_background.end() - 1, m_background.end());
    step();
}

void SteppingDispatcher::runAll()
{
    while (!m_background.empty() || !m_posted.empty()) {
        if (m_posted.empty())
            runBackground();
        else
            runPosted();
    }
}

void SteppingDispatcher::discardAll()
{
    m_background.clear();
    m_posted.clear();
}

} // namespace Loadwick
