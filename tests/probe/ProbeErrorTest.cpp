#include "probe/ProbeError.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "text/OnLinux.h"

namespace Loadwick {

namespace {

std::string repeated(std::string_view piece, std::size_t count)
{
    std::string text;
    for (std::size_t index = 0; index < count; ++index)
        text += piece;
    return text;
}

} // namespace

TEST(ProbeErrorTest, hasOneHeadlinePerCase)
{
    EXPECT_EQ(ProbeError::repositoryUnreadable("/r").headline(), "This folder could not be read.");
    EXPECT_EQ(ProbeError::cliNotFound({}).headline(), "Could not find the claude command.");
    EXPECT_EQ(ProbeError::unreadableOutput("x").headline(),
              "The probe session returned output this app could not read.");
    EXPECT_EQ(ProbeError::noTranscript("/p").headline(),
              "The probe session produced no readable token usage.");
    EXPECT_EQ(ProbeError::sessionFailed("x").headline(), "The probe session reported an error.");
    EXPECT_EQ(ProbeError::notAuthenticated().headline(), "Claude Code is not signed in.");
    EXPECT_EQ(ProbeError::timedOut().headline(), "The probe session took longer than 5 minutes.");
}

TEST(ProbeErrorTest, sharesOneHeadlineBetweenTheTwoTurnCases)
{
    const std::string shared = "The probe session did not produce a startup total.";
    EXPECT_EQ(ProbeError::multiTurnUsageOnly(3).headline(), shared);
    EXPECT_EQ(ProbeError::unknownTurnCount().headline(), shared);
    EXPECT_NE(ProbeError::multiTurnUsageOnly(3).detail(), ProbeError::unknownTurnCount().detail());
}

TEST(ProbeErrorTest, explainsAnUnreadableFolder)
{
    EXPECT_EQ(ProbeError::repositoryUnreadable("/home/a b").detail(),
              "/home/a b exists but its contents could not be listed. macOS may be blocking "
              "access \u2014 allow Loadwick under System Settings \u2192 Privacy & Security \u2192 "
              "Files & Folders (or move the repository outside a protected folder) \u2014 or the "
              "folder may have been moved or deleted since it was chosen. Nothing was measured and "
              "none of your Claude allowance was used.");
}

TEST(ProbeErrorTest, saysWhatHoldsOnLinuxWhereTheDetailSpeaksOfMacOS)
{
    EXPECT_EQ(ProbeError::repositoryUnreadable("/home/a b").platformNote(),
              onLinux("On Linux there is no such setting: your user needs permission to read and "
                      "enter /home/a b, and to enter every folder above it."));
    EXPECT_EQ(ProbeError::cliNotFound({"/bin/claude"}).platformNote(), std::nullopt);
    EXPECT_EQ(ProbeError::timedOut().platformNote(), std::nullopt);
}

TEST(ProbeErrorTest, listsEveryPathThatWasSearched)
{
    EXPECT_EQ(ProbeError::cliNotFound({"/a", "/b", "/c"}).detail(),
              "Looked in:\n  \u2022 /a\n  \u2022 /b\n  \u2022 /c");
    const std::string detail = ProbeError::cliNotFound({"/a", "/b", "/c"}).detail();
    EXPECT_EQ(std::count(detail.begin(), detail.end(), '\n') + 1, 4);
    EXPECT_EQ(ProbeError::cliNotFound({}).detail(), "Looked in:\n");
    EXPECT_EQ(ProbeError::cliNotFound({"", ""}).detail(), "Looked in:\n  \u2022 \n  \u2022 ");
}

TEST(ProbeErrorTest, namesTheFolderThatHoldsNoTranscript)
{
    EXPECT_EQ(ProbeError::noTranscript("/p").detail(),
              "No session transcript was found under /p and the CLI returned no usage block.");
}

TEST(ProbeErrorTest, hasNoSingularForOneTurn)
{
    EXPECT_EQ(ProbeError::multiTurnUsageOnly(1).detail(),
              "No session transcript was found, and the CLI usage block covers 1 turns. That block "
              "accumulates across turns, so it double-counts cached tokens and cannot be shown as "
              "the startup total. Nothing was measured \u2014 try again.");
}

TEST(ProbeErrorTest, writesTheTurnCountInPlainDigits)
{
    const std::string detail = ProbeError::multiTurnUsageOnly(1234567).detail();
    EXPECT_NE(detail.find(" covers 1234567 turns. "), std::string::npos);
}

TEST(ProbeErrorTest, hasFixedTextsForCasesWithoutData)
{
    EXPECT_EQ(
        ProbeError::notAuthenticated().detail(),
        "Run `claude` in Terminal and sign in, then scan again. This app never handles Claude "
        "credentials.");
    EXPECT_EQ(ProbeError::timedOut().detail(),
              "Nothing was measured. Try again, or try a smaller repository.");
    EXPECT_EQ(
        ProbeError::unknownTurnCount().detail(),
        "No session transcript was found, and the CLI did not report how many turns its usage "
        "block covers. That block accumulates across turns, so it can only be trusted for a "
        "single-turn session. Nothing was measured \u2014 try again.");
}

TEST(ProbeErrorTest, saysNoOutputForBlankText)
{
    EXPECT_EQ(ProbeError::sessionFailed(" \n \r\n").detail(), "(no output)");
    EXPECT_EQ(ProbeError::unreadableOutput("").detail(), "(no output)");
    EXPECT_EQ(ProbeError::bounded("\u2028\u00A0\u0085", 5), "(no output)");
}

TEST(ProbeErrorTest, showsFiveHundredCharactersWhole)
{
    const std::string text = repeated("x", 500);
    EXPECT_EQ(ProbeError::unreadableOutput(" \n" + text + "\n ").detail(), text);
}

TEST(ProbeErrorTest, truncatesAfterFiveHundredCharacters)
{
    EXPECT_EQ(ProbeError::unreadableOutput(repeated("x", 501)).detail(),
              repeated("x", 500) + "\u2026");
    EXPECT_EQ(ProbeError::sessionFailed(repeated("x", 501)).detail(),
              repeated("x", 500) + "\u2026");
}

TEST(ProbeErrorTest, trimsBlankLinesBeforeTruncating)
{
    EXPECT_EQ(ProbeError::unreadableOutput("\n\n" + repeated("x", 501) + "\n\n").detail(),
              repeated("x", 500) + "\u2026");
}

TEST(ProbeErrorTest, countsUserPerceivedCharacters)
{
    const std::string family = "👩‍👩‍👧‍👦";
    EXPECT_EQ(ProbeError::bounded(repeated(family, 500), 500), repeated(family, 500));
    EXPECT_EQ(ProbeError::bounded(repeated(family, 501), 500), repeated(family, 500) + "…");
    EXPECT_EQ(ProbeError::bounded("e\u0301e\u0301", 1), "e\u0301…");
    EXPECT_EQ(ProbeError::bounded("a\r\nb", 2), "a\r\n…");
    EXPECT_EQ(ProbeError::bounded("ab", 0), "…");
}

TEST(ProbeErrorTest, truncatesCharactersOfManyMarksAfterSixteenKilobytes)
{
    const std::string marked = "e" + repeated("\u0301", 100'000);
    const std::string shown = ProbeError::sessionFailed(marked).detail();
    EXPECT_EQ(shown, "e" + repeated("\u0301", 8191) + "…");
    EXPECT_EQ(ProbeError::unreadableOutput(shown).detail(), shown);
}

TEST(ProbeErrorTest, keepsTheWholeTextOfAFailure)
{
    const auto error = ProbeError::sessionFailed(repeated("y", 600));
    EXPECT_EQ(std::get<ProbeError::SessionFailed>(error.value()).text.size(), 600U);
}

TEST(ProbeErrorTest, isEqualInCaseAndPayload)
{
    EXPECT_EQ(ProbeError::sessionFailed("a"), ProbeError::sessionFailed("a"));
    EXPECT_NE(ProbeError::sessionFailed("a"), ProbeError::sessionFailed("b"));
    EXPECT_NE(ProbeError::sessionFailed("a"), ProbeError::unreadableOutput("a"));
    EXPECT_NE(ProbeError::timedOut(), ProbeError::notAuthenticated());
    EXPECT_EQ(ProbeError::cliNotFound({"a"}), ProbeError::cliNotFound({"a"}));
}

TEST(ProbeErrorTest, keepsItsCasesInTheirDeclaredOrder)
{
    const std::vector<ProbeError> cases{
        ProbeError::repositoryUnreadable(""), ProbeError::cliNotFound({}),
        ProbeError::unreadableOutput(""),     ProbeError::noTranscript(""),
        ProbeError::sessionFailed(""),        ProbeError::multiTurnUsageOnly(0),
        ProbeError::notAuthenticated(),       ProbeError::timedOut(),
        ProbeError::unknownTurnCount()};
    ASSERT_EQ(cases.size(), std::variant_size_v<ProbeError::Case>);
    for (std::size_t index = 0; index < cases.size(); ++index)
        EXPECT_EQ(cases[index].value().index(), index);
}

} // namespace Loadwick
