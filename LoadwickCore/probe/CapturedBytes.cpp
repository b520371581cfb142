#include "probe/CapturedBytes.h"

#include <algorithm>
#include <new>

namespace Loadwick {

namespace {

constexpr std::size_t smallestBlock = std::size_t{64} * 1024;

} // namespace

void CapturedBytes::append(std::span<const char> chunk) noexcept
{
    if (m_state != State::complete)
        return;
    if (chunk.size() > m_limit - m_byteCount)
        return drop(State::beyondLimit);
    try {
        store(chunk);
    } catch (const std::bad_alloc &) {
        drop(State::outOfMemory);
    }
}

void CapturedBytes::store(std::span<const char> chunk)
{
    while (!chunk.empty()) {
        if (m_freeInLast == 0) {
            m_blocks.emplace_back(std::max(smallestBlock, m_byteCount / 16));
            m_freeInLast = m_blocks.back().bytes().size();
        }
        const std::size_t count = std::min(chunk.size(), m_freeInLast);
        std::copy_n(chunk.begin(), count, m_blocks.back().bytes().last(m_freeInLast).begin());
        chunk = chunk.subspan(count);
        m_freeInLast -= count;
        m_byteCount += count;
    }
}

void CapturedBytes::drop(State reason) noexcept
{
    m_blocks.clear();
    m_state = reason;
}

std::optional<std::string> CapturedBytes::join() &&
{
    if (m_state == State::outOfMemory)
        throw std::bad_alloc();
    if (m_state == State::beyondLimit)
        return std::nullopt;
    std::string text;
    text.reserve(m_byteCount);
    for (MemoryBlock &block : m_blocks) {
        const MemoryBlock piece = std::move(block);
        const std::size_t count = std::min(piece.bytes().size(), m_byteCount - text.size());
        text.append(piece.bytes().data(), count);
    }
    m_blocks.clear();
    return text;
}

} // namespace Loadwick
