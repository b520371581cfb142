#include "json/JsonTree.h"

#include <cstddef>
#include <iterator>
#include <utility>

namespace Loadwick {

namespace {

using Json = nlohmann::json;

/// The last item or member of a container; null for one that has none, and for what is no
/// container.
Json *lastIn(Json &value) noexcept
{
    if (auto *const items = value.get_ptr<Json::array_t *>())
        return items->empty() ? nullptr : &items->back();
    if (auto *const members = value.get_ptr<Json::object_t *>())
        return members->empty() ? nullptr : &std::prev(members->end())->second;
    return nullptr;
}

void dropLastIn(Json &value) noexcept
{
    if (auto *const items = value.get_ptr<Json::array_t *>())
        return items->pop_back();
    auto *const members = value.get_ptr<Json::object_t *>();
    members->erase(std::prev(members->end()));
}

} // namespace

// The road back up is kept in the tree itself: the place from which a container was taken holds the
// container above.
void dismantle(Json &value) noexcept
{
    Json current = std::move(value);
    Json above;
    for (std::size_t depth = 0;;) {
        Json *const last = lastIn(current);
        if (last == nullptr && depth == 0)
            return;
        if (last == nullptr) {
            current = std::exchange(above, Json());
            above = std::move(*lastIn(current));
            dropLastIn(current);
            --depth;
        } else if (lastIn(*last) == nullptr) {
            dropLastIn(current);
        } else {
            Json child = std::move(*last);
            *last = std::move(above);
            above = std::move(current);
            current = std::move(child);
            ++depth;
        }
    }
}

JsonTree &JsonTree::operator=(JsonTree &&other) noexcept
{
    if (this != &other) {
        dismantle(m_value);
        m_value.swap(other.m_value);
    }
    return *this;
}

} // namespace Loadwick
