#include "text/CsvTable.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace Loadwick {
namespace {

std::string cell(std::string_view text)
{
    CsvTable table;
    table.text(text);
    return table.bytes();
}

TEST(CsvTableTest, separatesCellsByCommasAndEndsRowsWithCrLf)
{
    CsvTable table;
    table.text("a").figure(1).empty().text("b").endRow();
    table.empty().empty().endRow();
    EXPECT_EQ(table.bytes(), "a,1,,b\r\n,\r\n");
}

TEST(CsvTableTest, anEmptyTextIsACell)
{
    CsvTable table;
    table.text("").text("a").endRow();
    EXPECT_EQ(table.bytes(), ",a\r\n");
}

TEST(CsvTableTest, quotesOnlyWhereNecessary)
{
    EXPECT_EQ(cell("plain words"), "plain words");
    EXPECT_EQ(cell("a,b"), "\"a,b\"");
    EXPECT_EQ(cell("a\nb"), "\"a\nb\"");
    EXPECT_EQ(cell("a\r\nb"), "\"a\r\nb\"");
    EXPECT_EQ(cell("say \"hi\""), "\"say \"\"hi\"\"\"");
}

TEST(CsvTableTest, aTextIsNeverAFormula)
{
    EXPECT_EQ(cell("=1+1"), "'=1+1");
    EXPECT_EQ(cell("+1"), "'+1");
    EXPECT_EQ(cell("-1"), "'-1");
    EXPECT_EQ(cell("@SUM(A1)"), "'@SUM(A1)");
    EXPECT_EQ(cell("\t=1"), "'\t=1");
    EXPECT_EQ(cell("\r=1"), "\"'\r=1\"");
    EXPECT_EQ(cell("=HYPERLINK(\"x\",\"y\")"), "\"'=HYPERLINK(\"\"x\"\",\"\"y\"\")\"");
    EXPECT_EQ(cell("a=1"), "a=1");
}

TEST(CsvTableTest, aFigureIsNeverEscaped)
{
    CsvTable table;
    table.figure(-2'500).figure(1'234'567).figure(std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(table.bytes(), "-2500,1234567,-9223372036854775808");
}

TEST(CsvTableTest, keepsNonAsciiBytes)
{
    EXPECT_EQ(cell("café ✓"), "café ✓");
}

} // namespace
} // namespace Loadwick
