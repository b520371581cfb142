#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <utility>

namespace Loadwick {

/// A value that others watch. Belongs to one thread. Observers may change this value and add
/// observers from within their calls; they must not throw, nor end the life of this.
template<typename Value>
class Published
{
public:
    struct Observer
    {
        /// Called with the incoming value while the old one still holds.
        std::function<void(const Value &incoming)> willChange = {};
        /// Called when the new value holds.
        std::function<void()> didChange = {};
    };

    explicit Published(Value value) : m_value(std::move(value)) {}

    Published(const Published &) = delete;
    Published &operator=(const Published &) = delete;

    [[nodiscard]] const Value &get() const noexcept { return m_value; }

    /// Observers are called in the order in which they came, for as long as this lives. One that
    /// comes during a change hears of the next.
    void observe(Observer observer) { m_observers.push_back(std::move(observer)); }

    /// Returns when the value holds and all know of it. Within an observer's call it only takes the
    /// value down: that becomes the next change, once all observers know of the present one.
    void set(Value incoming)
    {
        m_waiting.push_back(std::move(incoming));
        if (m_isChanging)
            return;
        m_isChanging = true;
        while (!m_waiting.empty()) {
            change(std::move(m_waiting.front()));
            m_waiting.pop_front();
        }
        m_isChanging = false;
    }

private:
    void change(Value incoming)
    {
        const std::size_t count = m_observers.size();
        for (std::size_t index = 0; index < count; ++index)
            if (m_observers[index].willChange)
                m_observers[index].willChange(incoming);
        m_value = std::move(incoming);
        for (std::size_t index = 0; index < count; ++index)
            if (m_observers[index].didChange)
                m_observers[index].didChange();
    }

    Value m_value;
    std::deque<Observer> m_observers; // no observer moves when one is added from within its call
    std::deque<Value> m_waiting;
    bool m_isChanging = false;
};

} // namespace Loadwick
