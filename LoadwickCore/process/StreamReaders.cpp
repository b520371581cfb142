#include "process/StreamReaders.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

#include "process/PipeDrain.h"

namespace Loadwick {

namespace {

constexpr double finalWaitSeconds = 1.0;

} // namespace

struct StreamReaders::Shared
{
    /// Counts the readers under way.
    class WaitGroup
    {
    public:
        void enter()
        {
            const std::lock_guard lock(m_lock);
            ++m_count;
        }

        void leave()
        {
            const std::lock_guard lock(m_lock);
            --m_count;
            m_changed.notify_all();
        }

        /// Blocks until `latest` at most; true if all have left.
        [[nodiscard]] bool waitUntil(Deadline latest)
        {
            std::unique_lock lock(m_lock);
            return m_changed.wait_until(lock, latest, [this] { return m_count == 0; });
        }

    private:
        std::mutex m_lock;
        std::condition_variable m_changed;
        int m_count = 0;
    };

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
    // unreachable: a reader stops at its deadline unless the system starves it for a second
    return inTime && !m_shared->box.readersDidTimeOut();
}

OutputBox &StreamReaders::box() noexcept
{
    return m_shared->box;
}

} // namespace Loadwick
