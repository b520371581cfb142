#include "history/RecordedScan.h"

#include <string>

#include <gtest/gtest.h>

#include "samples/SampleReport.h"
#include "support/RecordedScanBuilder.h"

namespace Loadwick {

using RecordedCategoryName::looksLikePath;
using RecordedCategoryName::storable;

namespace {

const std::chrono::sys_seconds date(std::chrono::seconds(1'772'615'727));

const std::string withheld(RecordedCategoryName::withheld);

std::string repeated(std::string_view character, int count)
{
    std::string text;
    for (int index = 0; index < count; ++index)
        text += character;
    return text;
}

} // namespace

TEST(RecordedScanTest, copiesTheReport)
{
    const ScanReport report = sampleReport();
    const Uuid id = Uuid::random();
    const RecordedScan scan = RecordedScan::fromReport(report, date, id);
    EXPECT_EQ(scan.id, id);
    EXPECT_EQ(scan.date, date);
    EXPECT_EQ(scan.repositoryName, report.repositoryName);
    EXPECT_EQ(scan.repositoryPath, report.repositoryPath);
    EXPECT_EQ(scan.total, report.total);
}

TEST(RecordedScanTest, keepsTheRowsInTheirOrder)
{
    const RecordedScan scan = RecordedScan::fromReport(sampleReport(), date, Uuid::random());
    EXPECT_EQ(scan.categories,
              (std::vector<RecordedCategory>{{.name = "System prompt", .tokens = 14'210},
                                             {.name = "Unattributed", .tokens = 12'632},
                                             {.name = "Tools", .tokens = 812}}));
}

TEST(RecordedScanTest, makesCategoryNamesSafeForStorage)
{
    ScanReport report = sampleReport();
    report.rows[0].name = "  /home/someone/secret.txt ";
    report.rows[1].name = " Tools ";
    report.rows[2].name = "notes.md";
    const RecordedScan scan = RecordedScan::fromReport(report, date, Uuid::random());
    EXPECT_EQ(scan.categories[0].name, "Other (name withheld)");
    EXPECT_EQ(scan.categories[1].name, "Tools");
    EXPECT_EQ(scan.categories[2].name, "Other (name withheld)");
}

TEST(RecordedScanTest, recordsAReportWithoutRows)
{
    ScanReport report = sampleReport();
    report.rows.clear();
    EXPECT_TRUE(RecordedScan::fromReport(report, date, Uuid::random()).categories.empty());
}

TEST(RecordedScanTest, derivesTheBandFromTheTotal)
{
    EXPECT_EQ(RecordedScanBuilder().ofTotal(29'999).build().band(), OpinionBand::lean);
    EXPECT_EQ(RecordedScanBuilder().ofTotal(30'000).build().band(), OpinionBand::heavy);
    EXPECT_EQ(RecordedScanBuilder().ofTotal(60'001).build().band(), OpinionBand::excessive);
}

TEST(RecordedScanTest, hasAFixedReplacement)
{
    EXPECT_EQ(withheld, "Other (name withheld)");
    EXPECT_EQ(storable(withheld), withheld);
}

TEST(RecordedScanTest, keepsTwoPlainWordsTrimmed)
{
    EXPECT_EQ(storable("System prompt"), "System prompt");
    EXPECT_EQ(storable(" \t System prompt \r\n"), "System prompt");
    EXPECT_EQ(storable("\xC2\xA0Memory\xE2\x80\xA8"), "Memory");
}

TEST(RecordedScanTest, withholdsAnAbsolutePathWithSpacesAroundIt)
{
    EXPECT_EQ(storable("  /home/someone/notes  "), withheld);
    EXPECT_EQ(storable("C:\\notes"), withheld);
}

TEST(RecordedScanTest, withholdsABareFileNameWithAnExtension)
{
    EXPECT_EQ(storable("CLAUDE.md"), withheld);
    EXPECT_EQ(storable("Memory from notes.txt and more"), withheld);
}

TEST(RecordedScanTest, withholdsAnEmptyOrBlankName)
{
    EXPECT_EQ(storable(""), withheld);
    EXPECT_EQ(storable(" \n\t "), withheld);
}

TEST(RecordedScanTest, withholdsANameThatContainsATilde)
{
    EXPECT_EQ(storable("home ~ folder"), withheld);
    EXPECT_EQ(storable("~"), withheld);
}

TEST(RecordedScanTest, keepsExactlyEightyCharactersAndWithholdsEightyOne)
{
    EXPECT_EQ(storable(std::string(80, 'a')), std::string(80, 'a'));
    EXPECT_EQ(storable(std::string(81, 'a')), withheld);
    EXPECT_EQ(storable(" " + std::string(80, 'a') + " "), std::string(80, 'a'));
}

TEST(RecordedScanTest, countsUserPerceivedCharacters)
{
    const std::string family = "👩‍👩‍👧‍👦";
    EXPECT_EQ(storable(repeated(family, 80)), repeated(family, 80));
    EXPECT_EQ(storable(repeated(family, 81)), withheld);
    EXPECT_EQ(storable(repeated("e\xCC\x81", 80)), repeated("e\xCC\x81", 80));
    EXPECT_EQ(storable(repeated("日", 81)), withheld);
}

TEST(RecordedScanTest, examinesTheLastDotOfAWordOnly)
{
    EXPECT_TRUE(looksLikePath("a.b.c"));
    EXPECT_TRUE(looksLikePath("a..b"));
    EXPECT_TRUE(looksLikePath(".git.config"));
    EXPECT_FALSE(looksLikePath("a.md."));
    EXPECT_FALSE(looksLikePath("a.md,x.-"));
}

TEST(RecordedScanTest, acceptsADotAtEitherEndOfAWord)
{
    EXPECT_FALSE(looksLikePath(".gitignore"));
    EXPECT_FALSE(looksLikePath("Tools etc."));
    EXPECT_FALSE(looksLikePath("."));
    EXPECT_FALSE(looksLikePath("a . b"));
    EXPECT_FALSE(looksLikePath(""));
}

TEST(RecordedScanTest, requiresLettersOrDigitsAfterTheDot)
{
    EXPECT_TRUE(looksLikePath("version 2.1"));
    EXPECT_TRUE(looksLikePath("notes.averylongextension"));
    EXPECT_TRUE(looksLikePath("заметки.текст"));
    EXPECT_TRUE(looksLikePath("menu.cafe\xCC\x81"));
    EXPECT_FALSE(looksLikePath("(notes.md)"));
    EXPECT_FALSE(looksLikePath("notes.md,"));
    EXPECT_FALSE(looksLikePath("a.b-c"));
    EXPECT_FALSE(looksLikePath("a.\xFF"));
}

TEST(RecordedScanTest, splitsWordsAtSpacesAndSkipsEmptyOnes)
{
    EXPECT_TRUE(looksLikePath("  read   notes.md  "));
    EXPECT_TRUE(looksLikePath("notes.md last"));
    EXPECT_FALSE(looksLikePath("notes .md"));
    EXPECT_FALSE(looksLikePath("notes. md"));
    EXPECT_FALSE(looksLikePath("notes.md\tlast"));
}

} // namespace Loadwick
