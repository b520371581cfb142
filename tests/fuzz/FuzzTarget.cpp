#include "fuzz/FuzzTarget.h"

#include "text/Fatal.h"

namespace Loadwick {

namespace {

std::vector<const FuzzTarget *> &targets()
{
    static std::vector<const FuzzTarget *> known; // ready before the first target
    return known;
}

} // namespace

FuzzTarget::FuzzTarget(std::string_view name, Check properties) : m_name(name), m_check(properties)
{
    targets().push_back(this);
}

const std::vector<const FuzzTarget *> &FuzzTarget::all()
{
    return targets();
}

void require(bool holds, std::string_view property)
{
    if (!holds)
        fatalError("does not hold: " + std::string(property));
}

} // namespace Loadwick
