#include "probe/ProbeEnvironment.h"

#include <algorithm>
#include <string>
#include <utility>

#include "probe/TranscriptLocator.h"

namespace Loadwick::ProbeEnvironment {

namespace {

template<typename Names>
bool contains(const Names &names, std::string_view name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool reachesChild(std::string_view name)
{
    if (contains(preservedKeys, name))
        return true;
    return !contains(scrubbedExactKeys, name) && !name.starts_with(scrubbedKeyPrefix);
}

} // namespace

Environment childEnvironment(const Environment &parent,
                             const std::filesystem::path &workingDirectory)
{
    Environment child;
    for (const auto &[name, value] : parent)
        if (reachesChild(name))
            child.emplace(name, value);

    const auto configured = child.find(std::string(TranscriptLocator::configDirEnvironmentKey));
    if (configured == child.end())
        return child;
    if (auto folder = TranscriptLocator::normalizedConfigDir(configured->second, workingDirectory))
        configured->second = std::move(*folder);
    else
        child.erase(configured);
    return child;
}

} // namespace Loadwick::ProbeEnvironment
