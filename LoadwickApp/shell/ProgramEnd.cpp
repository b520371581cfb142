#include "shell/ProgramEnd.h"

#include <chrono>
#include <cstdlib>
#include <system_error>
#include <thread>

namespace Loadwick::ProgramEnd {
namespace {

using namespace std::chrono_literals;

constexpr auto childGrace = 500ms;
constexpr auto longestEnd = 900ms; // leaves the system a tenth of the second

} // namespace

void leave(Shutdown &shutdown, int status)
{
    shutdown.stopChildren(childGrace);
    std::_Exit(status);
}

void begin(const std::shared_ptr<Shutdown> &shutdown, int status)
{
    const auto deadline = std::chrono::steady_clock::now() + longestEnd;
    try {
        std::thread([shutdown, status, deadline] {
            shutdown->stopChildren(childGrace);
            std::this_thread::sleep_until(deadline);
            std::_Exit(status);
        }).detach();
    } catch (const std::system_error &) {
        leave(*shutdown, status);
    }
}

} // namespace Loadwick::ProgramEnd
