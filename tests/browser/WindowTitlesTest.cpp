#include "browser/WindowTitles.h"

#include "browser/DisplayName.h"
#include "browser/ListTables.h"
#include "browser/ModelClassRow.h"
#include "browser/ParamRow.h"
#include "browser/ShownTable.h"
#include "params/SampleStore.h"
#include "support/PrintStringU.h"
#include "support/TranslationScope.h"

#include <gtest/gtest.h>

namespace
{

TEST(WindowTitlesTest, Titles)
{
    EXPECT_EQ(gMakeDevicesTitle(""), "Quorva Devices");
    EXPECT_EQ(gMakeDevicesTitle("X1"), "Quorva Devices (X1)");
    EXPECT_EQ(gMakeDeviceDetailsTitle("X1.M1 (n1)"), "Device Parameters: X1.M1 (n1)");
    EXPECT_EQ(gMakeModelsTitle(), "Library Models");
    EXPECT_EQ(gMakeModelDetailsTitle("X1.n1"), "Library Model Details [X1.n1]");
    EXPECT_EQ(gMakeClassesTitle(), "Quorva Models");
    EXPECT_EQ(gMakeClassDetailsTitle("MOS1"), "Model: MOS1 [Default values]");
}

TEST(WindowTitlesTest, AreTranslatedButForTheNamesInThem)
{
    const CBracketTranslation brackets;
    EXPECT_EQ(gMakeDevicesTitle("X1"), "[Quorva Devices] (X1)");
    EXPECT_EQ(gMakeDeviceDetailsTitle("M1"), "[Device Parameters: ]M1");
    EXPECT_EQ(gMakeModelsTitle(), "[Library Models]");
    EXPECT_EQ(gMakeModelDetailsTitle("n1"), "[Library Model Details []n1]");
    EXPECT_EQ(gMakeClassesTitle(), "[Quorva Models]");
    EXPECT_EQ(gMakeClassDetailsTitle("c"), "[Model: ]c[ [Default values]]");
}

TEST(ColumnTitlesTest, AreTranslated)
{
    const CBracketTranslation brackets;
    const TCircuitParams store;
    EXPECT_EQ(gShownTitles(gMakeDevicesTable(store, {}, "")), "[Name]|[Model]|[Type]");
    EXPECT_EQ(gShownTitles(gMakeModelsTable(store, {})), "[Name]|[Type]|[Level]|[Quorva Name]");
    EXPECT_EQ(gShownTitles(gMakeClassesTable({})), "[Name]|[Type]|[Level]|[Version]|[Description]");
    EXPECT_EQ(gShownTitles(gMakeParamTable({})), "[Name]|[Value]|[Units]|[Description]");
}

TEST(DisplayNameTest, TheSubcircuitStandsInFrontFromId1On)
{
    TCircuitParams store;
    store.AddSubckt("top", 0);
    store.AddSubckt("X1", 1);
    EXPECT_EQ(gMakeDisplayName(store, 0, "R1"), "R1");
    EXPECT_EQ(gMakeDisplayName(store, -1, "R1"), "R1");
    EXPECT_EQ(gMakeDisplayName(store, 1, "R1"), "X1.R1");
    EXPECT_EQ(gMakeDisplayName(store, 2, "R1"), ".R1"); // the table doesn't have the id
}

TEST(DisplayNameTest, AskedByTwoNames)
{
    EXPECT_EQ(gMakeAskedName("", "R1"), "R1");
    EXPECT_EQ(gMakeAskedName("X1", "R1"), "X1.R1");
    EXPECT_EQ(gMakeAskedName("X1", ""), "X1.");
    EXPECT_EQ(gMakeAskedName("", ""), "");
}

TEST(DisplayNameTest, ADevicesTitleHasItsModelIfItHasOne)
{
    TCircuitParams store;
    gFillSample(store);
    store.AddDevice(gDevice(0, "m9", {0, "absent", "MOS1", "nmos"}));
    EXPECT_EQ(gMakeDeviceTitle("x1.M2", *store.GetDeviceData(1, "M2")), "x1.M2 (n2)");
    EXPECT_EQ(gMakeDeviceTitle("x1.r10", *store.GetDeviceData(1, "r10")), "x1.r10");
    EXPECT_EQ(gMakeDeviceTitle("m9", *store.GetDeviceData(0, "m9")), "m9");
}

} // namespace
