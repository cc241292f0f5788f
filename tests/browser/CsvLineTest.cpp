#include "browser/CsvLine.h"

#include "support/PrintStringU.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

struct TLineCase {
    const char* mpName;
    std::vector<CStringU> mTexts;
    CStringU msExpected;
};

TParamTableRow RowOf(const std::vector<CStringU>& rTexts)
{
    TParamTableRow row;
    for (const CStringU& rsText : rTexts) {
        row.push_back({rsText, false});
    }
    return row;
}

TEST(CsvLineTest, Lines)
{
    const std::vector<TLineCase> cases{
        {"the example", {"R1", "1k", "", "a,b"}, "R1,1k, ,\"a,b\""},
        {"no cell", {}, ""},
        {"an empty cell is a blank", {""}, " "},
        {"an empty first cell is a blank and then a comma", {"", "x"}, " ,x"},
        {"two empty cells", {"", ""}, " , "},
        {"a blank stays a blank", {" ", "x"}, " ,x"},
        {"a comma alone", {","}, "\",\""},
        {"a comma and a quote in front are left as they stand", {"\"a,b"}, "\"a,b"},
        {"a quoted text with a comma", {"\"a,b\"", "c"}, "\"a,b\",c"},
        {"quotes inside aren't doubled", {"a \"b\", c"}, "\"a \"b\", c\""},
        {"a quote without a comma", {"a \"b\" c"}, "a \"b\" c"},
        {"a quote at the end", {"5\""}, "5\""},
        {"line ends aren't quoted", {"a\r\nb", "c"}, "a\r\nb,c"},
        {"a semicolon and a tab aren't quoted", {"a;b\tc"}, "a;b\tc"},
        {"beyond ASCII", {u"\u00B5,m", "x"}, u"\"\u00B5,m\",x"},
        {"beyond ASCII behind a plain cell", {"x", u"5 \u2126"}, u"x,5 \u2126"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(gMakeCsvLine(RowOf(row.mTexts)), row.msExpected) << row.mpName;
    }
}

TEST(CsvLineTest, HighlightsDontShow)
{
    EXPECT_EQ(gMakeCsvLine({{"a", true}, {"b", false}}), "a,b");
}

TEST(ExportTextTest, AnEmptyTableGivesAnEmptyText)
{
    TParamTableData table;
    table.mColumnTitles = {"Name", "Model"};
    EXPECT_EQ(gMakeExportText(table), "");
}

TEST(ExportTextTest, EachRowWithALineFeedAndNoTitles)
{
    TParamTableData table;
    table.mColumnTitles = {"Name", "Model"};
    table.mRows = {RowOf({"R1", "res"}), RowOf({"", "a,b"}), RowOf({u"\u00B5", ""})};
    EXPECT_EQ(gMakeExportText(table), u"R1,res\n ,\"a,b\"\n\u00B5, \n");
}

TEST(ExportTextTest, IsTheLinesOfItsRows)
{
    TParamTableData table;
    CStringU sExpected;
    for (int n = 0; n < 300; ++n) {
        // Lengths around those at which texts begin to take memory of their own.
        table.mRows.push_back(RowOf({std::string(static_cast<std::size_t>(n % 40), 'x'),
                                     n % 3 == 0 ? CStringU("a,b") : CStringU(u"\u00E9")}));
        sExpected += gMakeCsvLine(table.mRows.back()) + "\n";
    }
    EXPECT_EQ(gMakeExportText(table), sExpected);
}

} // namespace
