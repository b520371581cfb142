#include "process/StreamReaders.h"

#include <thread>
#include <utility>

#include "process/PipeDrain.h"
#include "process/ReaderDeadline.h"
#include "process/WaitGroup.h"

namespace Loadwick {

namespace {

constexpr double finalWaitSeconds = 1.0;

} // namespace

struct StreamReaders::Shared
{
    explicit Shared(std::size_t captureLimit) : box(captureLimit) {}

    void read(FileDescriptor descriptor, OutputBox::Stream stream)
    {
        const auto keep = [&](std::span<const char> chunk) { box.append(stream, chunk); };
        if (PipeDrain::run(std::move(descriptor), deadline, keep))
            box.noteReaderTimeOut();
        group.leave();
    }

    OutputBox box;
    ReaderDeadline deadline;
    WaitGroup group;
};

StreamReaders::StreamReaders(std::size_t captureLimit)
    : m_shared(std::make_shared<Shared>(captureLimit))
{}

StreamReaders::~StreamReaders()
{
    m_shared->deadline.setExpiry(deadlineAfter(0));
}

void StreamReaders::start(const FileDescriptor &readEnd, OutputBox::Stream stream)
{
    FileDescriptor duplicate = readEnd.duplicate();
    if (!duplicate.isOpen())
        return;
    const auto read = [shared = m_shared, stream](FileDescriptor descriptor) {
        shared->read(std::move(descriptor), stream);
    };
    m_shared->group.enter();
    try {
        std::thread(read, std::move(duplicate)).detach();
    } catch (...) {
        m_shared->group.leave();
        throw;
    }
}

bool StreamReaders::finish(double graceSeconds)
{
    m_shared->deadline.setExpiry(deadlineAfter(graceSeconds));
    const bool inTime = m_shared->group.waitUntil(deadlineAfter(graceSeconds + finalWaitSeconds));
    // not taken: a reader stops at its deadline unless the system lets it stand for a second
    return inTime && !m_shared->box.readersDidTimeOut();
}

OutputBox &StreamReaders::box() noexcept
{
    return m_shared->box;
}

} // namespace Loadwick
