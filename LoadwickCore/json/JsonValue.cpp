#include "json/JsonValue.h"

#include <algorithm>
#include <utility>

namespace Loadwick {

JsonValue::JsonValue() noexcept = default;

JsonValue::JsonValue(Content content) noexcept : m_content(std::move(content)) {}

JsonValue::~JsonValue()
{
    if (lastChild() != nullptr)
        dismantle();
}

JsonValue::JsonValue(JsonValue &&other) noexcept
    : m_content(std::exchange(other.m_content, nullptr))
{}

JsonValue &JsonValue::operator=(JsonValue &&other) noexcept
{
    JsonValue taken(std::move(other));
    m_content.swap(taken.m_content);
    return *this;
}

/// The last item or member of a container; null if it is empty or not a container.
JsonValue *JsonValue::lastChild() noexcept
{
    if (auto *const items = as<Array>())
        return items->empty() ? nullptr : &items->back();
    if (auto *const members = as<Object>())
        return members->empty() ? nullptr : &members->back().value;
    return nullptr;
}

void JsonValue::dropLastChild() noexcept
{
    if (auto *const items = as<Array>())
        items->pop_back();
    else
        as<Object>()->pop_back();
}

/// Empties a container from the innermost child outwards. The way back up is kept in the tree
/// itself: the slot from which a container was taken holds the container above it.
void JsonValue::dismantle() noexcept
{
    for (JsonValue above;;) {
        JsonValue *const last = lastChild();
        if (last != nullptr && last->lastChild() == nullptr) {
            dropLastChild();
        } else if (last != nullptr) {
            above.m_content.swap(last->m_content);
            m_content.swap(above.m_content);
        } else if (above.lastChild() != nullptr) {
            m_content.swap(above.m_content);
            above.m_content.swap(lastChild()->m_content);
        } else {
            return;
        }
    }
}

const JsonValue *member(const JsonValue &object, std::string_view key) noexcept
{
    const auto *const members = object.as<JsonValue::Object>();
    if (members == nullptr)
        return nullptr;
    const auto found = std::find_if(members->rbegin(), members->rend(),
                                    [&](const JsonMember &each) { return each.key == key; });
    return found == members->rend() ? nullptr : &found->value;
}

JsonValue *member(JsonValue &object, std::string_view key) noexcept
{
    return const_cast<JsonValue *>(member(std::as_const(object), key));
}

const std::string *textOf(const JsonValue *value) noexcept
{
    return value == nullptr ? nullptr : value->as<std::string>();
}

std::optional<std::int64_t> exactInteger(const JsonValue *value) noexcept
{
    const auto *const integer = value == nullptr ? nullptr : value->as<std::int64_t>();
    return integer == nullptr ? std::nullopt : std::optional(*integer);
}

} // namespace Loadwick
