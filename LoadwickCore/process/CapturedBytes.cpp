#include "process/CapturedBytes.h"

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
        return; // the text grows step by step then
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

} // namespace Loadwick
