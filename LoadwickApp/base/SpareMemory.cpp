#include "base/SpareMemory.h"

#include <chrono>
#include <exception>
#include <utility>

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

namespace Loadwick {
namespace {

constexpr std::chrono::seconds pageRest(1); // a page that is shown has arrived by then

} // namespace

SpareMemory::SpareMemory(std::shared_ptr<TaskDispatcher> dispatcher)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(pageRest);
    QObject::connect(&m_rest, &QTimer::timeout, [dispatcher = std::move(dispatcher)] {
        try {
            dispatcher->runInBackground(&SpareMemory::giveBack);
        } catch (const std::exception &) {
            // No thread can be started: the next page tries again.
        }
    });
}

void SpareMemory::giveBack() noexcept
{
#if defined(__GLIBC__)
    malloc_trim(0);
#endif
}

} // namespace Loadwick
