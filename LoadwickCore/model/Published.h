#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <utility>

namespace Loadwick {

/// A value with observers. Belongs to one thread. Observers may change the value and add observers
/// from within their calls; they must not throw or destroy this object.
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

    /// Observers are called in the order in which they were added, for as long as this lives. One
    /// added during a change is called from the next change on.
    void observe(Observer observer) { m_observers.push_back(std::move(observer)); }

    /// Returns when the value holds and every observer was called. Within an observer's call it
    /// only queues the value, which becomes the next change once this one is complete.
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
    std::deque<Observer> m_observers; // a deque: an observer may add one from within its call
    std::deque<Value> m_waiting;
    bool m_isChanging = false;
};

} // namespace Loadwick
