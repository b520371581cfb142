#include "process/PipeDrain.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace Loadwick {

namespace {

enum class Readiness
{
    readable,
    notYet,
    failed
};

enum class Step
{
    proceed,
    stop
};

void makeNonBlocking(int descriptor) noexcept
{
    const int flags = fcntl(descriptor, F_GETFL);
    if (flags >= 0)
        fcntl(descriptor, F_SETFL, flags | O_NONBLOCK);
}

// Until the deadline is known there is nothing to wake up for but input and the deadline itself: a
// command runs for minutes.
Readiness waitForInput(int descriptor, const ReaderDeadline &deadline)
{
    const auto expiry = deadline.expiry();
    const int known = expiry ? FileDescriptor::none : deadline.descriptor();
    std::array waited{pollfd{descriptor, POLLIN, 0}, pollfd{known, POLLIN, 0}};
    const int limit = expiry ? millisecondsUntil(*expiry, PipeDrain::pollInterval) : -1;
    if (poll(waited.data(), waited.size(), limit) < 0)
        return errno == EINTR ? Readiness::notYet : Readiness::failed;
    return waited[0].revents != 0 ? Readiness::readable : Readiness::notYet;
}

Step readOnce(int descriptor, std::span<char> buffer, const PipeDrain::Sink &sink)
{
    const ssize_t count = read(descriptor, buffer.data(), buffer.size());
    if (count > 0) {
        sink(buffer.first(static_cast<std::size_t>(count)));
        return Step::proceed;
    }
    // unreachable: nothing else reads what poll has seen, and EAGAIN equals EWOULDBLOCK here
    if (count == 0 || (errno != EAGAIN && errno != EWOULDBLOCK && errno != EINTR))
        return Step::stop;
    std::this_thread::sleep_for(PipeDrain::backOff);
    return Step::proceed;
}

} // namespace

void ReaderDeadline::setExpiry(Deadline expiry)
{
    const std::lock_guard lock(m_lock);
    m_expiry = expiry;
    m_known.writeEnd.reset();
}

std::optional<Deadline> ReaderDeadline::expiry() const
{
    const std::lock_guard lock(m_lock);
    return m_expiry;
}

bool ReaderDeadline::hasPassed() const
{
    const std::optional<Deadline> moment = expiry();
    return moment && std::chrono::steady_clock::now() >= *moment;
}

bool PipeDrain::run(FileDescriptor descriptor, const ReaderDeadline &deadline, const Sink &sink)
{
    const FileDescriptor input = std::move(descriptor);
    std::array<char, bufferSize> buffer;
    makeNonBlocking(input.number());
    while (!deadline.hasPassed()) {
        const Readiness readiness = waitForInput(input.number(), deadline);
        if (readiness == Readiness::failed)
            return false;
        if (readiness == Readiness::readable &&
            readOnce(input.number(), buffer, sink) == Step::stop)
            return false;
    }
    return true;
}

} // namespace Loadwick
