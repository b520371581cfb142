#include "process/OutputBox.h"

#include <utility>

namespace Loadwick {

void OutputBox::append(Stream stream, std::span<const char> chunk) noexcept
{
    const std::lock_guard lock(m_lock);
    bytes(stream).append(chunk);
}

std::optional<std::string> OutputBox::take(Stream stream)
{
    CapturedBytes taken(0);
    {
        const std::lock_guard lock(m_lock);
        taken = std::exchange(bytes(stream), CapturedBytes(0));
    }
    // Joining a large stream takes long; a reader that still runs must not wait for it.
    return std::move(taken).join();
}

bool OutputBox::ranOutOfMemory() const
{
    const std::lock_guard lock(m_lock);
    return m_outData.ranOutOfMemory() || m_errData.ranOutOfMemory();
}

void OutputBox::noteReaderTimeOut()
{
    const std::lock_guard lock(m_lock);
    m_readersDidTimeOut = true;
}

bool OutputBox::readersDidTimeOut() const
{
    const std::lock_guard lock(m_lock);
    return m_readersDidTimeOut;
}

CapturedBytes &OutputBox::bytes(Stream stream) noexcept
{
    return stream == Stream::standardOutput ? m_outData : m_errData;
}

} // namespace Loadwick
