#include <string>
#include <string_view>
#include <vector>

#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"
#include "report/InstructionImports.h"
#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

using Tokens = std::vector<std::string_view>;

std::vector<std::string_view> linesOf(std::string_view text)
{
    std::vector<std::string_view> lines;
    FuzzInput input(text);
    while (!input.isAtEnd())
        lines.push_back(input.takeLine());
    return lines;
}

std::string_view markerOf(std::string_view line)
{
    const std::string_view content = trimmedSpaces(line);
    for (const char *marker : {"```", "~~~"})
        if (content.starts_with(marker))
            return content.substr(0, 3);
    return {};
}

/// Index of the line that closes the fence opened at `opening`; 0 when none does.
std::size_t closingLine(const std::vector<std::string_view> &lines, std::size_t opening)
{
    for (std::size_t index = opening + 1; index < lines.size(); ++index)
        if (markerOf(lines[index]) == markerOf(lines[opening]))
            return index;
    return 0;
}

/// The tokens by the rule in words: finds the lines in closed fences, reads the others.
Tokens tokensOutsideFences(std::string_view text)
{
    const std::vector<std::string_view> lines =
        linesOf(text.substr(text.starts_with("\uFEFF") ? 3 : 0));
    Tokens tokens;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        const std::size_t closing = markerOf(lines[index]).empty() ? 0 : closingLine(lines, index);
        if (closing != 0) {
            index = closing;
            continue;
        }
        const bool opensForGood = !markerOf(lines[index]).empty();
        const Tokens found = InstructionImports::tokensInLine(lines[index]);
        tokens.insert(tokens.end(), found.begin(), found.end());
        if (!opensForGood)
            continue;
        // This fence is never closed, and no other opens after it.
        while (++index < lines.size()) {
            const Tokens later = InstructionImports::tokensInLine(lines[index]);
            tokens.insert(tokens.end(), later.begin(), later.end());
        }
    }
    return tokens;
}

void checkToken(std::string_view token, std::string_view text)
{
    require(!token.empty() && token.data() >= text.data() &&
                token.data() + token.size() <= text.data() + text.size(),
            "a token is a part of the text");
    require(*(token.data() - 1) == '@', "an @ precedes a token");
    require(token.front() != '@', "a doubled @ is not an import");
    require(token.find("://") == std::string_view::npos, "an address is not an import");
    require(token.find_first_of(" \t\n\r") == std::string_view::npos, "a token is one word");
    require(std::string_view(".,;:!?)]}\"'`").find(token.back()) == std::string_view::npos,
            "closing punctuation belongs to the sentence");
}

void checkImports(std::string_view text)
{
    const Tokens tokens = InstructionImports::tokensIn(text);
    for (const std::string_view token : tokens)
        checkToken(token, text);
    require(tokens == tokensOutsideFences(text), "closed fences hold no imports");
    const std::string fenced = "```\n" + std::string(text) + "\n```\n@last";
    require(text.find("```") != std::string_view::npos ||
                InstructionImports::tokensIn(fenced) == Tokens{"last"},
            "a fence hides its content");
}

const FuzzTarget target("InstructionImports", checkImports);

} // namespace

} // namespace Loadwick
