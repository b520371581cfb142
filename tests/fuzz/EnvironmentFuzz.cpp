#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <unistd.h>

#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"
#include "probe/ProbeEnvironment.h"
#include "probe/TranscriptLocator.h"
#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

/// A process's environment made of the lines of an input, for as long as this lives.
class LinesAsEnvironment
{
public:
    explicit LinesAsEnvironment(FuzzInput input)
    {
        while (!input.isAtEnd())
            m_entries.emplace_back(input.takeLine());
        for (std::string &entry : m_entries)
            m_pointers.push_back(entry.data());
        m_pointers.push_back(nullptr);
        m_other = std::exchange(environ, m_pointers.data());
    }
    ~LinesAsEnvironment() { environ = m_other; }

    LinesAsEnvironment(const LinesAsEnvironment &) = delete;
    LinesAsEnvironment &operator=(const LinesAsEnvironment &) = delete;

    /// The value that getenv returns.
    [[nodiscard]] const char *valueOf(const std::string &name) const
    {
        for (const std::string &entry : m_entries)
            if (entry.starts_with(name + "="))
                return entry.c_str() + name.size() + 1;
        return nullptr;
    }

private:
    std::vector<std::string> m_entries;
    std::vector<char *> m_pointers;
    char **m_other = nullptr;
};

bool mustNotReachTheChild(const std::string &name)
{
    if (name == "CLAUDE_CODE_OAUTH_TOKEN")
        return false;
    return name == "CLAUDECODE" || name == "ANTHROPIC_BASE_URL" || name == "ANTHROPIC_API_KEY" ||
           name == "ANTHROPIC_AUTH_TOKEN" || name.starts_with("CLAUDE_CODE_");
}

void checkChild(const Environment &parent, const Environment &child)
{
    const auto isScrubbed = [](const auto &entry) {
        return mustNotReachTheChild(entry.first) ||
               (entry.first == TranscriptLocator::configDirEnvironmentKey &&
                trimmed(entry.second).empty());
    };
    require(std::none_of(child.begin(), child.end(), isScrubbed), "nothing scrubbed gets through");
    const auto scrubbed = std::count_if(parent.begin(), parent.end(), isScrubbed);
    require(child.size() + static_cast<std::size_t>(scrubbed) == parent.size(),
            "nothing else is lost or added");
    for (const auto &[name, value] : child) {
        if (name != TranscriptLocator::configDirEnvironmentKey)
            require(parent.at(name) == value, "values pass unchanged");
        else
            require(value.starts_with('/'), "the configuration folder is absolute");
    }
}

void checkEnvironment(std::string_view bytes)
{
    FuzzInput input(bytes);
    const std::string workingFolder = "/" + std::string(input.takeLine());
    const LinesAsEnvironment lines(input);
    const Environment parent = currentEnvironment();
    require(!parent.contains(""), "every variable has a name");
    for (const auto &[name, value] : parent)
        require(value == lines.valueOf(name), "the first of two duplicates wins");
    checkChild(parent, ProbeEnvironment::childEnvironment(parent, workingFolder));
}

const FuzzTarget target("Environment", checkEnvironment);

} // namespace

} // namespace Loadwick
