#include "probe/ProbeError.h"

#include <utility>

#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

struct Headline
{
    std::string operator()(const ProbeError::RepositoryUnreadable &) const
    {
        return "This folder could not be read.";
    }
    std::string operator()(const ProbeError::CliNotFound &) const
    {
        return "Could not find the claude command.";
    }
    std::string operator()(const ProbeError::UnreadableOutput &) const
    {
        return "The probe session returned output this app could not read.";
    }
    std::string operator()(const ProbeError::NoTranscript &) const
    {
        return "The probe session produced no readable token usage.";
    }
    std::string operator()(const ProbeError::SessionFailed &) const
    {
        return "The probe session reported an error.";
    }
    std::string operator()(const ProbeError::MultiTurnUsageOnly &) const
    {
        return "The probe session did not produce a startup total.";
    }
    std::string operator()(const ProbeError::NotAuthenticated &) const
    {
        return "Claude Code is not signed in.";
    }
    std::string operator()(const ProbeError::TimedOut &) const
    {
        return "The probe session took longer than 5 minutes.";
    }
    std::string operator()(const ProbeError::UnknownTurnCount &) const
    {
        return "The probe session did not produce a startup total.";
    }
};

struct Detail
{
    std::string operator()(const ProbeError::RepositoryUnreadable &error) const
    {
        return error.path +
               " exists but its contents could not be listed. macOS may be blocking "
               "access — allow Loadwick under System Settings → Privacy & Security → "
               "Files & Folders (or move the repository outside a protected folder) — or the "
               "folder may have been moved or deleted since it was chosen. Nothing was "
               "measured and none of your Claude allowance was used.";
    }
    std::string operator()(const ProbeError::CliNotFound &error) const
    {
        std::string lines;
        for (const std::string &path : error.searched)
            lines += (lines.empty() ? "  • " : "\n  • ") + path;
        return "Looked in:\n" + lines;
    }
    std::string operator()(const ProbeError::UnreadableOutput &error) const
    {
        return ProbeError::bounded(error.text, ProbeError::detailLimit);
    }
    std::string operator()(const ProbeError::NoTranscript &error) const
    {
        return "No session transcript was found under " + error.searchedRoot +
               " and the CLI returned no usage block.";
    }
    std::string operator()(const ProbeError::SessionFailed &error) const
    {
        return ProbeError::bounded(error.text, ProbeError::detailLimit);
    }
    std::string operator()(const ProbeError::MultiTurnUsageOnly &error) const
    {
        return "No session transcript was found, and the CLI usage block covers " +
               std::to_string(error.turns) +
               " turns. That block accumulates across turns, so it double-counts cached tokens "
               "and cannot be shown as the startup total. Nothing was measured — try again.";
    }
    std::string operator()(const ProbeError::NotAuthenticated &) const
    {
        return "Run `claude` in Terminal and sign in, then scan again. This app never handles "
               "Claude credentials.";
    }
    std::string operator()(const ProbeError::TimedOut &) const
    {
        return "Nothing was measured. Try again, or try a smaller repository.";
    }
    std::string operator()(const ProbeError::UnknownTurnCount &) const
    {
        return "No session transcript was found, and the CLI did not report how many turns its "
               "usage block covers. That block accumulates across turns, so it can only be trusted "
               "for a single-turn session. Nothing was measured — try again.";
    }
};

} // namespace

ProbeError::ProbeError(Case value) : m_case(std::move(value)) {}

ProbeError ProbeError::repositoryUnreadable(std::string path)
{
    return ProbeError(RepositoryUnreadable{std::move(path)});
}

ProbeError ProbeError::cliNotFound(std::vector<std::string> searched)
{
    return ProbeError(CliNotFound{std::move(searched)});
}

ProbeError ProbeError::unreadableOutput(std::string text)
{
    return ProbeError(UnreadableOutput{std::move(text)});
}

ProbeError ProbeError::noTranscript(std::string searchedRoot)
{
    return ProbeError(NoTranscript{std::move(searchedRoot)});
}

ProbeError ProbeError::sessionFailed(std::string text)
{
    return ProbeError(SessionFailed{std::move(text)});
}

ProbeError ProbeError::multiTurnUsageOnly(std::int64_t turns)
{
    return ProbeError(MultiTurnUsageOnly{turns});
}

ProbeError ProbeError::notAuthenticated()
{
    return ProbeError(NotAuthenticated{});
}

ProbeError ProbeError::timedOut()
{
    return ProbeError(TimedOut{});
}

ProbeError ProbeError::unknownTurnCount()
{
    return ProbeError(UnknownTurnCount{});
}

std::string ProbeError::headline() const
{
    return std::visit(Headline{}, m_case);
}

std::string ProbeError::detail() const
{
    return std::visit(Detail{}, m_case);
}

std::string ProbeError::bounded(std::string_view text, std::size_t limit)
{
    const std::string_view content = trimmed(text);
    if (content.empty())
        return "(no output)";
    const std::size_t end = byteCountOfCharacters(content, limit);
    std::string shown(content.substr(0, end));
    if (end < content.size())
        shown += "…";
    return shown;
}

} // namespace Loadwick
