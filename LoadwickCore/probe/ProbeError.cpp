#include "probe/ProbeError.h"

#include <utility>

#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

struct ErrorWords
{
    std::string headline;
    std::string detail;
};

struct ErrorWordsOf
{
    ErrorWords operator()(const ProbeError::RepositoryUnreadable &error) const
    {
        return {"This folder could not be read.",
                error.path +
                    " exists but its contents could not be listed. macOS may be blocking "
                    "access — allow Loadwick under System Settings → Privacy & Security → "
                    "Files & Folders (or move the repository outside a protected folder) — or the "
                    "folder may have been moved or deleted since it was chosen. Nothing was "
                    "measured and none of your Claude allowance was used."};
    }
    ErrorWords operator()(const ProbeError::CliNotFound &error) const
    {
        std::string lines;
        for (const std::string &path : error.searched)
            lines += (lines.empty() ? "  • " : "\n  • ") + path;
        return {"Could not find the claude command.", "Looked in:\n" + lines};
    }
    ErrorWords operator()(const ProbeError::UnreadableOutput &error) const
    {
        return {"The probe session returned output this app could not read.",
                ProbeError::bounded(error.text, ProbeError::detailLimit)};
    }
    ErrorWords operator()(const ProbeError::NoTranscript &error) const
    {
        return {"The probe session produced no readable token usage.",
                "No session transcript was found under " + error.searchedRoot +
                    " and the CLI returned no usage block."};
    }
    ErrorWords operator()(const ProbeError::SessionFailed &error) const
    {
        return {"The probe session reported an error.",
                ProbeError::bounded(error.text, ProbeError::detailLimit)};
    }
    ErrorWords operator()(const ProbeError::MultiTurnUsageOnly &error) const
    {
        return {
            "The probe session did not produce a startup total.",
            "No session transcript was found, and the CLI usage block covers " +
                std::to_string(error.turns) +
                " turns. That block accumulates across turns, so it double-counts cached tokens "
                "and cannot be shown as the startup total. Nothing was measured — try again."};
    }
    ErrorWords operator()(const ProbeError::NotAuthenticated &) const
    {
        return {"Claude Code is not signed in.",
                "Run `claude` in Terminal and sign in, then scan again. This app never handles "
                "Claude credentials."};
    }
    ErrorWords operator()(const ProbeError::TimedOut &) const
    {
        return {"The probe session took longer than 5 minutes.",
                "Nothing was measured. Try again, or try a smaller repository."};
    }
    ErrorWords operator()(const ProbeError::UnknownTurnCount &) const
    {
        return {
            "The probe session did not produce a startup total.",
            "No session transcript was found, and the CLI did not report how many turns its "
            "usage block covers. That block accumulates across turns, so it can only be trusted "
            "for a single-turn session. Nothing was measured — try again."};
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
    return std::visit(ErrorWordsOf{}, m_case).headline;
}

std::string ProbeError::detail() const
{
    return std::visit(ErrorWordsOf{}, m_case).detail;
}

std::string ProbeError::bounded(std::string_view text, std::size_t limit)
{
    const std::string_view content = trimmed(text);
    if (content.empty())
        return "(no output)";
    const std::string_view head = firstBytes(content, detailByteLimit);
    std::string shown(head.substr(0, byteCountOfCharacters(head, limit)));
    if (shown.size() < content.size())
        shown += "…";
    return shown;
}

} // namespace Loadwick
