#include "probe/ProbeError.h"

#include <utility>

#include "text/OnLinux.h"
#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

struct ErrorWords
{
    std::string headline;
    std::string detail;
    std::optional<std::string> platformNote = {};
};

ErrorWords wordsOf(const ProbeError::RepositoryUnreadable &error)
{
    return {"This folder could not be read.",
            error.path +
                " exists but its contents could not be listed. macOS may be blocking "
                "access — allow Loadwick under System Settings → Privacy & Security → "
                "Files & Folders (or move the repository outside a protected folder) — or the "
                "folder may have been moved or deleted since it was chosen. Nothing was "
                "measured and none of your Claude allowance was used.",
            onLinux("On Linux there is no such setting: your user needs permission to read and "
                    "enter " +
                    error.path + ", and to enter every folder above it.")};
}

ErrorWords wordsOf(const ProbeError::CliNotFound &error)
{
    std::string lines;
    for (const std::string &path : error.searched)
        lines += (lines.empty() ? "  • " : "\n  • ") + path;
    return {"Could not find the claude command.", "Looked in:\n" + lines};
}

ErrorWords wordsOf(const ProbeError::UnreadableOutput &error)
{
    return {"The probe session returned output this app could not read.",
            ProbeError::bounded(error.text, ProbeError::detailLimit)};
}

ErrorWords wordsOf(const ProbeError::NoTranscript &error)
{
    return {"The probe session produced no readable token usage.",
            "No session transcript was found under " + error.searchedRoot +
                " and the CLI returned no usage block."};
}

ErrorWords wordsOf(const ProbeError::SessionFailed &error)
{
    return {"The probe session reported an error.",
            ProbeError::bounded(error.text, ProbeError::detailLimit)};
}

ErrorWords wordsOf(const ProbeError::MultiTurnUsageOnly &error)
{
    return {"The probe session did not produce a startup total.",
            "No session transcript was found, and the CLI usage block covers " +
                std::to_string(error.turns) +
                " turns. That block accumulates across turns, so it double-counts cached tokens "
                "and cannot be shown as the startup total. Nothing was measured — try again."};
}

ErrorWords wordsOf(const ProbeError::NotAuthenticated &)
{
    return {"Claude Code is not signed in.",
            "Run `claude` in Terminal and sign in, then scan again. This app never handles "
            "Claude credentials."};
}

ErrorWords wordsOf(const ProbeError::TimedOut &)
{
    return {"The probe session took longer than 5 minutes.",
            "Nothing was measured. Try again, or try a smaller repository."};
}

ErrorWords wordsOf(const ProbeError::UnknownTurnCount &)
{
    return {"The probe session did not produce a startup total.",
            "No session transcript was found, and the CLI did not report how many turns its "
            "usage block covers. That block accumulates across turns, so it can only be trusted "
            "for a single-turn session. Nothing was measured — try again."};
}

ErrorWords wordsOfCase(const ProbeError::Case &value)
{
    return std::visit([](const auto &error) { return wordsOf(error); }, value);
}

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
    return wordsOfCase(m_case).headline;
}

std::string ProbeError::detail() const
{
    return wordsOfCase(m_case).detail;
}

std::optional<std::string> ProbeError::platformNote() const
{
    return wordsOfCase(m_case).platformNote;
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
