#include "browser/ListTables.h"

#include "browser/DisplayName.h"
#include "browser/ShownTable.h"
#include "params/SampleStore.h"
#include "support/PrintStringU.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> DeviceRows(const TCircuitParams& rStore, const CStringU& rsFilter)
{
    const TDeviceList list = gMakeDeviceList(rStore, rsFilter);
    return gShownRows(gMakeDevicesTable(rStore, list.mEntries, list.msFilter));
}

TEST(DevicesTableTest, AllDevicesInTheOrderOfTheStore)
{
    TCircuitParams store;
    gFillSample(store);
    store.AddDevice(gDevice(1, "abc9", {}));
    store.AddDevice(gDevice(1, "abd1", {}));
    store.AddDevice(gDevice(1, "q", {}));
    EXPECT_THAT(DeviceRows(store, ""), ElementsAre("m1|n1|nmos", "x1.q||", "x1.M2|n2|nmos",
                                                   "x1.r10||", "x1.abd1||", "x1.abc9||"));
}

TEST(DevicesTableTest, NoCellIsHighlighted)
{
    TCircuitParams store;
    gFillSample(store);
    for (const TParamTableRow& rRow : gMakeDevicesTable(store, store.GetDeviceList(-1), "").mRows) {
        for (const TParamTableCell& rCell : rRow) {
            EXPECT_FALSE(rCell.mbHighlight);
        }
    }
}

TEST(DevicesTableTest, TheWidthsOfItsRowsAreKept)
{
    TCircuitParams store;
    gFillSample(store);
    store.AddDevice(gDevice(1, "abc9", {}));
    store.AddDevice(gDevice(1, CStringU(u"\u00B5\u00B5\u00B5\u00B5\u00B5\u00B5"), {}));
    const auto widths = [&store] {
        return gMakeDevicesTable(store, store.GetDeviceList(-1), "").mRowWidths;
    };
    EXPECT_THAT(widths(), ElementsAre(3 + 12, 2, 4)); // the code page is UTF-8
    store.AddDevice(gDevice(1, std::string(100, 'x'), {}));
    EXPECT_THAT(widths(), ElementsAre(45, 2, 4));
}

TEST(DevicesTableTest, AnEmptyStoreHasThreeColumnsAndNoRows)
{
    const TCircuitParams store;
    const TParamTableData table = gMakeDevicesTable(store, store.GetDeviceList(-1), "");
    EXPECT_EQ(gShownTitles(table), "Name|Model|Type");
    EXPECT_THAT(table.mRows, IsEmpty());
}

// Meant: the filtered view shows the subcircuit twice.
TEST(DevicesTableTest, AFilterStandsInFrontOnceMore)
{
    TCircuitParams store;
    store.AddSubckt("top", 0);
    store.AddSubckt("X1", 1);
    store.AddDevice(gDevice(0, "R9", {}));
    store.AddDevice(gDevice(1, "R1", {}));
    EXPECT_THAT(DeviceRows(store, ""), ElementsAre("R9||", "X1.R1||"));
    EXPECT_THAT(DeviceRows(store, "X1"), ElementsAre("X1.X1.R1||"));
    EXPECT_THAT(DeviceRows(store, "top"), ElementsAre("top.R9||"));
}

struct TFilterCase {
    const char* mpFilter;
    const char* mpKept;
    std::size_t mnDevices;
};

TEST(DeviceListTest, AFilterThatNamesNoSubcircuitIsDropped)
{
    TCircuitParams store;
    gFillSample(store);
    store.AddSubckt("empty", 2);
    const TFilterCase cases[]{
        {"", "", 3},   {"x1", "x1", 2}, {"top", "top", 1}, {"empty", "empty", 0},
        {"X1", "", 3}, {"m1", "", 3},   {"x1.r10", "", 3},
    };
    for (const auto& row : cases) {
        const TDeviceList list = gMakeDeviceList(store, row.mpFilter);
        EXPECT_EQ(list.mEntries.size(), row.mnDevices) << row.mpFilter;
        EXPECT_EQ(list.msFilter, row.mpKept) << row.mpFilter;
    }
}

TEST(DevicesTableTest, SubcircuitsOfAnyIdAndName)
{
    TCircuitParams store;
    store.AddSubckt("third", 3); // leaves the names of 0 to 2 empty
    store.AddDevice(gDevice(-5, "below", {}));
    store.AddDevice(gDevice(0, "top", {}));
    store.AddDevice(gDevice(1, "nameless", {}));
    store.AddDevice(gDevice(3, "named", {}));
    store.AddDevice(gDevice(9, "unknown", {}));
    EXPECT_THAT(DeviceRows(store, ""),
                ElementsAre("below||", "top||", ".nameless||", "third.named||", ".unknown||"));
}

TEST(DevicesTableTest, TheIdIsTheEntrysAndNotTheDatasets)
{
    TCircuitParams store;
    store.AddSubckt("x1", 1);
    store.mCircuitDeviceDatasets[1]["key"] = gDevice(0, "name", {}); // as a damaged file has it
    EXPECT_THAT(DeviceRows(store, ""), ElementsAre("name||"));
}

TEST(DeviceTitleTest, TheModelsNameIsTheModelsOwn)
{
    TCircuitParams store;
    gFillSample(store);
    store.mCircuitModelDatasets.at(0).at("n1").mModelHeader.msName = "own"; // a damaged file's
    EXPECT_EQ(gMakeDeviceTitle("m1", *store.GetDeviceData(0, "m1")), "m1 (own)");
}

TEST(DevicesTableTest, NamesBeyondAscii)
{
    TCircuitParams store;
    store.AddSubckt(u"\u00FC", 1);
    store.AddSubckt("x", 2);
    store.AddDevice(gDevice(1, "r", {}));
    store.AddDevice(gDevice(2, u"\u00E4", {}));
    EXPECT_THAT(DeviceRows(store, ""), ElementsAre("\u00FC.r||", "x.\u00E4||"));
    EXPECT_THAT(DeviceRows(store, "x"), ElementsAre("x.x.\u00E4||"));
}

TEST(ModelsTableTest, AllModelsInTheOrderOfTheStore)
{
    TCircuitParams store;
    gFillSample(store);
    store.AddModelClass(gClass("BJT54", "npn", -54, {}, {}, {}));
    store.AddModel(gModel(1, "q", "BJT54", "pnp"));
    const TParamTableData table = gMakeModelsTable(store, store.GetModelList());
    EXPECT_EQ(gShownTitles(table), "Name|Type|Level|Quorva Name");
    EXPECT_THAT(gShownRows(table),
                ElementsAre("n1|nmos|1|MOS1", "x1.q|pnp|-54|BJT54", "x1.n2|nmos|1|MOS1"));
}

TEST(ModelsTableTest, WithoutModelsThereAreFourColumnsAndNoRows)
{
    const TCircuitParams store;
    const TParamTableData table = gMakeModelsTable(store, store.GetModelList());
    EXPECT_EQ(table.mColumnTitles.size(), 4U);
    EXPECT_THAT(table.mRows, IsEmpty());
}

TEST(ModelsTableTest, AModelWhoseClassIsAbsentIsNotListed)
{
    TCircuitParams store;
    store.AddSubckt("top", 0);
    store.AddModel(gModel(0, "n1", "absent", "nmos"));
    EXPECT_THAT(gShownRows(gMakeModelsTable(store, store.GetModelList())), ElementsAre());
}

} // namespace
