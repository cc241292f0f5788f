#include "browser/ParamRow.h"

#include "browser/ShownTable.h"
#include "params/SampleStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

std::vector<std::string> Names(const std::vector<TParamRow>& rRows)
{
    std::vector<std::string> names;
    for (const TParamRow& rRow : rRows) {
        names.emplace_back(rRow.msName.Text());
    }
    return names;
}

std::vector<TParamDef> DefsOf(const std::vector<CStringU>& rNames)
{
    std::vector<TParamDef> defs;
    for (const CStringU& rsName : rNames) {
        defs.push_back(gDef(rsName, 1));
    }
    return defs;
}

TEST(ParamRowTest, SortedWithoutRegardToCase)
{
    EXPECT_THAT(Names(gMakeParamRows(DefsOf({"Vto", "vfb", "W"}))), ElementsAre("vfb", "Vto", "W"));
    EXPECT_THAT(Names(gMakeParamRows(DefsOf({"zz9", "ab", "l10", "l2", ""}))),
                ElementsAre("", "ab", "l10", "l2", "zz9"));
    EXPECT_THAT(Names(gMakeParamRows(DefsOf({"z", u"\u00C4", u"\u00E4b", "a"}))),
                ElementsAre("a", "z", "\u00C4", "\u00E4b"));
}

TEST(ParamRowTest, EqualNamesStayAndNothingMisbehaves)
{
    std::vector<CStringU> names(1000, "same");
    names.insert(names.end(), 1000, "SAME");
    names.emplace_back("a");
    const std::vector<TParamRow> rows = gMakeParamRows(DefsOf(names));
    ASSERT_EQ(rows.size(), 2001U);
    EXPECT_EQ(rows.front().msName, "a");
    EXPECT_THAT(Names(gMakeParamRows(DefsOf({"w", "W"}))), UnorderedElementsAre("w", "W"));
}

TEST(ParamRowTest, EachMember)
{
    TParamDef def = gDef("vto", 0.7);
    def.mIsSet = true;
    def.msUnits = "V";
    def.msDescription = "threshold, voltage";
    def.mAliases = {"vt0"};
    const std::vector<TParamRow> rows = gMakeParamRows({def});
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].msName, "vto");
    EXPECT_EQ(rows[0].msValue, "700m");
    EXPECT_TRUE(rows[0].mbIsSet);
    EXPECT_EQ(rows[0].msUnits, "V");
    EXPECT_EQ(rows[0].msDescription, "threshold, voltage");
    EXPECT_THAT(gMakeParamRows({}), IsEmpty());
}

struct TValueCase {
    const char* mpName;
    TParamValue mValue;
    const char* mpExpected;
};

TEST(ParamRowTest, ValuesAsTexts)
{
    const std::vector<TValueCase> cases{
        {"a bool", true, "true"},
        {"a whole number", -3, "-3"},
        {"a number", 2e-6, "2u"},
        {"a text", CStringU("a,b"), "a,b"},
        {"an empty text", CStringU(), ""},
        {"no value yet", kUninitializedParamValue, "<uninitialized>"},
        {"another NaN", std::numeric_limits<double>::quiet_NaN(), "NaN"},
    };
    for (const auto& row : cases) {
        const std::vector<TParamRow> rows = gMakeParamRows({gDef("p", row.mValue)});
        EXPECT_EQ(rows.at(0).msValue, row.mpExpected) << row.mpName;
        EXPECT_FALSE(rows.at(0).mbIsSet) << row.mpName;
    }
}

TEST(ParamTableTest, OnlyTheValueOfASetParameterIsHighlighted)
{
    const TParamTableData table =
        gMakeParamTable({{"vto", "650m", true, "V", "threshold"}, {"kp", "20u", false, "", ""}});
    EXPECT_EQ(gShownTitles(table), "Name|Value|Units|Description");
    EXPECT_THAT(gShownRows(table), ElementsAre("vto|650m*|V|threshold", "kp|20u||"));
}

TEST(ParamTableTest, WithoutRowsItHasItsColumns)
{
    const TParamTableData table = gMakeParamTable({});
    EXPECT_EQ(gShownTitles(table), "Name|Value|Units|Description");
    EXPECT_THAT(table.mRows, IsEmpty());
}

TEST(ParamTableTest, ADevicesParametersShowTheirDefaultsWithoutBlue)
{
    TCircuitParams store;
    gFillSample(store);
    const TDeviceData* const pDevice = store.GetDeviceData(0, "m1");
    ASSERT_NE(pDevice, nullptr);
    EXPECT_THAT(gShownRows(gMakeParamTable(gMakeParamRows(pDevice->GetDeviceParams()))),
                ElementsAre("l|1u||", "w|2u*||"));
    EXPECT_THAT(gShownRows(gMakeParamTable(gMakeParamRows(pDevice->GetModelParams()))),
                ElementsAre("kp|20u||", "vto|650m*||"));
}

TEST(ParamTableTest, ADeviceWithoutAClassHasNoRows)
{
    TCircuitParams store;
    gFillSample(store);
    const TDeviceData* const pDevice = store.GetDeviceData(1, "r10");
    ASSERT_NE(pDevice, nullptr);
    EXPECT_THAT(gMakeParamRows(pDevice->GetDeviceParams()), IsEmpty());
    EXPECT_THAT(gMakeParamRows(pDevice->GetModelParams()), IsEmpty());
}

} // namespace
