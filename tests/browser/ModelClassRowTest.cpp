#include "browser/ModelClassRow.h"

#include "browser/ClassParamRows.h"
#include "browser/ShownTable.h"
#include "params/SampleStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TModelClassDef ClassOf(const TModelClassHeader& rHeader)
{
    return {rHeader, {}, {}, {}};
}

TModelClassRow RowOf(const CStringU& rsName, const CStringU& rsType, const CStringU& rsLevel,
                     const CStringU& rsVersion)
{
    return {rsName, rsType, rsLevel, rsVersion, {}};
}

struct TLessCase {
    const char* mpName;
    TModelClassRow mLeft;
    TModelClassRow mRight;
};

TEST(ModelClassRowTest, Order)
{
    const std::vector<TLessCase> cases{
        {"by name first", RowOf("a", "z", "9", "9"), RowOf("b", "a", "1", "1")},
        {"names without regard to case", RowOf("a", "", "", ""), RowOf("B", "", "", "")},
        {"a capital letter first", RowOf("A", "", "", ""), RowOf("b", "", "", "")},
        {"alphabetical, not by length", RowOf("abc", "", "", ""), RowOf("b", "", "", "")},
        {"then by type", RowOf("a", "nmos", "9", "9"), RowOf("a", "PMOS", "1", "1")},
        {"then by level", RowOf("a", "t", "1", "9"), RowOf("a", "t", "2", "1")},
        {"level 10 before level 2", RowOf("a", "t", "10", "1"), RowOf("a", "t", "2", "1")},
        {"a level below 0 first", RowOf("a", "t", "-1", "1"), RowOf("a", "t", "0", "1")},
        {"then by version", RowOf("a", "t", "1", "1"), RowOf("a", "t", "1", "2")},
        {"versions as texts", RowOf("a", "t", "1", "10"), RowOf("a", "t", "1", "9.5")},
    };
    for (const auto& row : cases) {
        EXPECT_TRUE(gIsClassRowLess(row.mLeft, row.mRight)) << row.mpName;
        EXPECT_FALSE(gIsClassRowLess(row.mRight, row.mLeft)) << row.mpName;
    }
    const TModelClassRow row = RowOf("a", "t", "1", "1");
    EXPECT_FALSE(gIsClassRowLess(row, row));
}

TEST(ModelClassRowTest, TheNameIsTheClasssOwnAndNotTheKey)
{
    TCircuitParams store;
    store.mModelClasses["key"] = ClassOf({"own", "t", 1, 1, ""}); // as a damaged file has it
    const std::vector<TModelClassRow> rows = gMakeModelClassRows(store);
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].msName, "own");
}

// Of three rows with names that differ in their case alone, types must not make a circle.
TEST(ModelClassRowTest, TheOrderIsStrictAndWeakForNamesThatDifferInCase)
{
    std::vector<TModelClassRow> rows;
    for (const char* const pName : {"x", "X", "y"}) {
        for (const char* const pType : {"a", "A", "b"}) {
            for (const char* const pLevel : {"1", "10", "2"}) {
                rows.push_back(RowOf(pName, pType, pLevel, "1"));
            }
        }
    }
    for (const auto& a : rows) {
        for (const auto& b : rows) {
            EXPECT_FALSE(gIsClassRowLess(a, b) && gIsClassRowLess(b, a));
            for (const auto& c : rows) {
                EXPECT_FALSE(gIsClassRowLess(a, b) && gIsClassRowLess(b, c) &&
                             !gIsClassRowLess(a, c));
                const bool bSame = !gIsClassRowLess(a, b) && !gIsClassRowLess(b, a) &&
                                   !gIsClassRowLess(b, c) && !gIsClassRowLess(c, b);
                EXPECT_FALSE(bSame && (gIsClassRowLess(a, c) || gIsClassRowLess(c, a)));
            }
        }
    }
}

struct TTextCase {
    const char* mpName;
    int mnLevel;
    double mdVersion;
    const char* mpLevel;
    const char* mpVersion;
};

TEST(ModelClassRowTest, LevelsAndVersionsAsTexts)
{
    const std::vector<TTextCase> cases{
        {"a fraction", 1, 2.5, "1", "2.5"},
        {"one million", 54, 1e6, "54", "1e+06"},
        {"six digits", 0, 123456.0, "0", "123456"},
        {"rounded to six digits", 0, 3.3000001, "0", "3.3"},
        {"a small one", -7, 1e-5, "-7", "1e-05"},
        {"none", -2147483647 - 1, 0, "-2147483648", "0"},
        {"below 0", 2147483647, -4.8, "2147483647", "-4.8"},
    };
    for (const auto& row : cases) {
        TCircuitParams store;
        store.AddModelClass(ClassOf({"c", "t", row.mnLevel, row.mdVersion, "text"}));
        const std::vector<TModelClassRow> rows = gMakeModelClassRows(store);
        ASSERT_EQ(rows.size(), 1U) << row.mpName;
        EXPECT_EQ(rows[0].msLevel, row.mpLevel) << row.mpName;
        EXPECT_EQ(rows[0].msVersion, row.mpVersion) << row.mpName;
    }
}

TEST(ModelClassRowTest, ElectricalAndOpticalClassesInOneList)
{
    TCircuitParams store;
    store.AddModelClass(ClassOf({"MOS2", "nmos", 2, 1, "second"}));
    store.AddModelClass(ClassOf({"bjt", "npn", 1, 1, "transistor"}));
    store.AddOpticalClass(ClassOf({"laser", "opt", 1, 2.5, "light, made"}));
    store.AddOpticalClass(ClassOf({"MOS2", "laser", 10, 1, "optical"}));
    const TParamTableData table = gMakeClassesTable(gMakeModelClassRows(store));
    EXPECT_EQ(gShownTitles(table), "Name|Type|Level|Version|Description");
    EXPECT_THAT(gShownRows(table),
                ElementsAre("bjt|npn|1|1|transistor", "laser|opt|1|2.5|light, made",
                            "MOS2|laser|10|1|optical", "MOS2|nmos|2|1|second"));
}

TEST(ModelClassRowTest, ClassesOfEqualNameAndTypeSortByLevelText)
{
    TCircuitParams store;
    store.AddModelClass(ClassOf({"M", "nmos", 2, 1, ""}));
    store.AddOpticalClass(ClassOf({"M", "nmos", 10, 1, ""}));
    EXPECT_THAT(gShownRows(gMakeClassesTable(gMakeModelClassRows(store))),
                ElementsAre("M|nmos|10|1|", "M|nmos|2|1|"));
}

TEST(ModelClassRowTest, NamesThatDifferOnlyInCaseStayTwoRows)
{
    TCircuitParams store;
    store.AddModelClass(ClassOf({"mos", "t", 1, 1, ""}));
    store.AddModelClass(ClassOf({"MOS", "t", 1, 1, ""}));
    EXPECT_EQ(gMakeModelClassRows(store).size(), 2U);
}

TEST(ModelClassRowTest, AnEmptyStoreHasNoRows)
{
    EXPECT_THAT(gMakeModelClassRows(TCircuitParams()), IsEmpty());
    EXPECT_THAT(gMakeClassesTable({}).mRows, IsEmpty());
}

TEST(FindClassRowTest, TheLastRowOfTheExactName)
{
    const std::vector<TModelClassRow> rows{RowOf("a", "1", "", ""), RowOf("b", "1", "", ""),
                                           RowOf("b", "2", "", ""), RowOf("C", "1", "", "")};
    EXPECT_EQ(gFindClassRow(rows, "a"), 0);
    EXPECT_EQ(gFindClassRow(rows, "b"), 2);
    EXPECT_EQ(gFindClassRow(rows, "C"), 3);
    EXPECT_EQ(gFindClassRow(rows, "c"), -1);
    EXPECT_EQ(gFindClassRow(rows, ""), -1);
    EXPECT_EQ(gFindClassRow({}, "a"), -1);
}

TEST(ClassParamRowsTest, TheDefinitionsOfAClassAsTheyAreStored)
{
    TCircuitParams store;
    gFillSample(store);
    store.mModelClasses["MOS1"].mStateParamDefs[1].mIsSet = true;
    const TClassParamRows rows = gMakeClassParamRows(store, "MOS1");
    EXPECT_THAT(gShownRows(gMakeParamTable(rows.mModelRows)),
                ElementsAre("kp|20u||", "vto|700m||"));
    EXPECT_THAT(gShownRows(gMakeParamTable(rows.mDeviceRows)), ElementsAre("l|1u||", "w|1u||"));
    EXPECT_THAT(gShownRows(gMakeParamTable(rows.mStateRows)),
                ElementsAre("on|false*||", "vgs|<uninitialized>||"));
}

TEST(ClassParamRowsTest, ElectricalBeforeOptical)
{
    TCircuitParams store;
    store.AddOpticalClass(gClass("only", "t", 1, {gDef("p", 1)}, {}, {}));
    store.AddOpticalClass(gClass("both", "t", 1, {gDef("optical", 1)}, {}, {}));
    store.AddModelClass(gClass("both", "t", 1, {gDef("electrical", 1)}, {}, {}));
    EXPECT_EQ(gMakeClassParamRows(store, "only").mModelRows.at(0).msName, "p");
    EXPECT_EQ(gMakeClassParamRows(store, "both").mModelRows.at(0).msName, "electrical");
}

TEST(ClassParamRowsTest, AnUnknownClassGivesThreeEmptyLists)
{
    TCircuitParams store;
    gFillSample(store);
    for (const char* const pName : {"", "mos1", "none"}) {
        const TClassParamRows rows = gMakeClassParamRows(store, pName);
        EXPECT_THAT(rows.mDeviceRows, IsEmpty()) << pName;
        EXPECT_THAT(rows.mModelRows, IsEmpty()) << pName;
        EXPECT_THAT(rows.mStateRows, IsEmpty()) << pName;
    }
}

} // namespace
