#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace Loadwick {

/// A value that others watch. Belongs to one thread.
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

    [[nodiscard]] const Value &get() const noexcept { return m_value; }

    /// Observers are called in the order in which they came, for as long as this lives.
    void observe(Observer observer) { m_observers.push_back(std::move(observer)); }

    void set(Value incoming)
    {
        for (const Observer &observer : m_observers)
            if (observer.willChange)
                observer.willChange(incoming);
        m_value = std::move(incoming);
        for (const Observer &observer : m_observers)
            if (observer.didChange)
                observer.didChange();
    }

private:
    Value m_value;
    std::vector<Observer> m_observers;
};

} // namespace Loadwick
