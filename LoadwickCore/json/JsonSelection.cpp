#include "json/JsonSelection.h"

namespace Loadwick {

JsonSelection JsonSelection::ofPaths(std::initializer_list<std::string_view> paths, Values values)
{
    JsonSelection selection;
    for (const std::string_view path : paths)
        selection.add(path, values);
    return selection;
}

const JsonSelection *JsonSelection::member(std::string_view key) const
{
    const auto found = m_members.find(key);
    return found == m_members.end() ? nullptr : &found->second;
}

void JsonSelection::add(std::string_view path, Values values)
{
    const std::size_t dot = path.find('.');
    JsonSelection &next = m_members[std::string(path.substr(0, dot))];
    if (dot != std::string_view::npos)
        return next.add(path.substr(dot + 1), values);
    next.m_isWhole = true;
    next.m_isScalar = values == Values::scalars;
}

} // namespace Loadwick
