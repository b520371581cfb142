#include "process/OutputBox.h"

#include <new>
#include <utility>

namespace Loadwick {

namespace {

constexpr std::size_t longText = std::size_t{1} << 20;

} // namespace

void CapturedBytes::append(std::span<const char> chunk) noexcept
{
    if (m_state != State::complete)
        return;
    if (chunk.size() > m_limit - m_text.size())
        return drop(State::beyondLimit);
    try {
        makeRoomFor(chunk.size());
        m_text.append(chunk.data(), chunk.size());
    } catch (const std::bad_alloc &) {
        drop(State::outOfMemory);
    }
}

void CapturedBytes::makeRoomFor(std::size_t byteCount)
{
    const std::size_t wanted = m_text.size() + byteCount;
    if (wanted <= m_text.capacity() || wanted <= longText)
        return;
    try {
        m_text.reserve(m_limit);
    } catch (const std::bad_alloc &) {
        return; // the text then grows incrementally
    }
}

void CapturedBytes::drop(State reason) noexcept
{
    std::string().swap(m_text);
    m_state = reason;
}

std::optional<std::string> CapturedBytes::join() &&
{
    if (m_state == State::outOfMemory)
        throw std::bad_alloc();
    if (m_state == State::beyondLimit)
        return std::nullopt;
    return std::move(m_text);
}

void OutputBox::append(Stream stream, std::span<const char> chunk) noexcept
{
    const std::lock_guard lock(m_lock);
    bytes(stream).append(chunk);
    if (bytes(stream).ranOutOfMemory())
        m_loss.writeEnd.reset();
}

std::optional<std::string> OutputBox::take(Stream stream)
{
    CapturedBytes taken(0);
    {
        const std::lock_guard lock(m_lock);
        taken = std::exchange(bytes(stream), CapturedBytes(0));
    }
    // Joining a large stream takes long; a running reader must not wait for it.
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
