#include "shell/ProgramEnd.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <system_error>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include "text/Fatal.h"

namespace Loadwick::ProgramEnd {
namespace {

using namespace std::chrono_literals;

constexpr auto childGrace = 500ms;
constexpr auto longestEnd = 900ms;    // leaves the system a tenth of the second
constexpr int signalStatusBase = 128; // as a shell reports a death by signal

int writeEnd = -1; // all that a signal handler may touch

void passOn(int signal)
{
    const int savedError = errno;
    const auto number = static_cast<unsigned char>(signal);
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, &number, 1);
    errno = savedError;
}

void setDisposition(int signal, void (*disposition)(int))
{
    struct sigaction action = {};
    action.sa_handler = disposition;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    ::sigaction(signal, &action, nullptr);
}

int openPipe()
{
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        fatalError("Loadwick cannot open a pipe.");
    for (const int end : ends)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    ::fcntl(ends[1], F_SETFL, O_NONBLOCK); // a handler must not block
    writeEnd = ends[1];
    return ends[0];
}

int nextSignal(int readEnd)
{
    unsigned char number = 0;
    while (::read(readEnd, &number, 1) != 1) {
    }
    return number;
}

} // namespace

void followSignals(std::shared_ptr<Shutdown> shutdown)
{
    setDisposition(SIGCHLD, SIG_DFL);
    setDisposition(SIGPIPE, SIG_IGN);
    const int readEnd = openPipe();
    std::thread([readEnd, shutdown = std::move(shutdown)] {
        const int signal = nextSignal(readEnd);
        leave(*shutdown, signalStatusBase + signal);
    }).detach();
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        setDisposition(signal, passOn);
}

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
