#include "params/PrintParams.h"
#include "params/SampleStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

static_assert(!std::is_copy_constructible_v<TCircuitParams>);
static_assert(!std::is_copy_assignable_v<TCircuitParams>);

std::vector<std::string> Shown(const std::vector<TDeviceListEntry>& rList)
{
    std::vector<std::string> shown;
    for (const TDeviceListEntry& r : rList) {
        shown.push_back(std::to_string(r.mnSubckt) + ' ' + std::string(r.msName.Text()) + ' ' +
                        std::string(r.msType.Text()) + ' ' + std::to_string(r.mnModelSubckt) + ' ' +
                        std::string(r.msModelName.Text()));
    }
    return shown;
}

std::vector<std::string> Shown(const std::vector<TModelListEntry>& rList)
{
    std::vector<std::string> shown;
    for (const TModelListEntry& r : rList) {
        shown.push_back(std::to_string(r.mnSubckt) + ' ' + std::string(r.msName.Text()) + ' ' +
                        std::string(r.msType.Text()) + ' ' + std::to_string(r.mnLevel) + ' ' +
                        std::string(r.msClass.Text()));
    }
    return shown;
}

TEST(CircuitParamsTest, ANewStoreIsEmpty)
{
    const TCircuitParams store;
    EXPECT_EQ(store.mSubcktTable.GetCount(), 0U);
    EXPECT_THAT(store.GetModelList(), IsEmpty());
    EXPECT_THAT(store.GetDeviceList(-1), IsEmpty());
    EXPECT_EQ(store.GetModelClass("MOS1"), nullptr);
    EXPECT_EQ(store.GetModelData(0, "n1"), nullptr);
    EXPECT_EQ(store.GetModelData("top", "n1"), nullptr);
    EXPECT_EQ(store.GetDeviceData(0, "m1"), nullptr);
    EXPECT_EQ(store.GetDeviceData("top", "m1"), nullptr);
    EXPECT_EQ(store.GetDeviceDataNoCase("top", "m1"), nullptr);
    EXPECT_EQ(store.GetSubcktId("top"), -1);
    EXPECT_EQ(store.GetSubcktName(0), "");
}

TEST(CircuitParamsTest, AddSubcktMakesEmptyDatasetsAndReplacesNothing)
{
    TCircuitParams store;
    gFillSample(store);
    store.AddSubckt("again", 1);
    EXPECT_EQ(store.mCircuitModelDatasets[1].size(), 1U);
    EXPECT_EQ(store.mCircuitDeviceDatasets[1].size(), 2U);
    store.AddSubckt("x2", 2);
    EXPECT_THAT(store.mCircuitModelDatasets.at(2), IsEmpty());
    EXPECT_THAT(store.mCircuitDeviceDatasets.at(2), IsEmpty());
    EXPECT_EQ(store.GetSubcktName(2), "x2");
    EXPECT_EQ(store.GetSubcktId("x2"), 2);
}

TEST(CircuitParamsTest, AddingLinksAtOnce)
{
    TCircuitParams store;
    gFillSample(store);
    const TModelClassDef* const pClass = &store.mModelClasses.at("MOS1");
    const TModelData& rModel = store.mCircuitModelDatasets.at(0).at("n1");
    const TDeviceData& rDevice = store.mCircuitDeviceDatasets.at(0).at("m1");
    EXPECT_EQ(rModel.mpModelClassDef, pClass);
    EXPECT_EQ(rDevice.mpModelClassDef, pClass);
    EXPECT_EQ(rDevice.mpModelData, &rModel);
}

TEST(CircuitParamsTest, AddingAgainReplacesAndKeepsThePlace)
{
    TCircuitParams store;
    gFillSample(store);
    const TModelClassDef* const pClass = store.GetModelClass("MOS1");
    const TModelData* const pModel = store.GetModelData(0, "n1");
    store.AddModelClass(gClass("MOS1", "pmos", 2, {}, {}, {}));
    EXPECT_EQ(store.GetModelClass("MOS1"), pClass);
    EXPECT_EQ(pClass->mHeader.msType, "pmos");
    store.AddModel(gModel(0, "n1", "MOS1", "pmos"));
    EXPECT_EQ(store.GetModelData(0, "n1"), pModel);
    EXPECT_THAT(pModel->mModelParamValues, IsEmpty());
    store.AddDevice(gDevice(0, "m1", {}));
    EXPECT_THAT(store.GetDeviceData(0, "m1")->mDeviceParamValues, IsEmpty());
    store.AddOpticalClass(gClass("LASER", "a", 1, {}, {}, {}));
    store.AddOpticalClass(gClass("LASER", "b", 1, {}, {}, {}));
    EXPECT_EQ(store.mOpticalClasses.at("LASER").mHeader.msType, "b");
}

TEST(CircuitParamsTest, OpticalClassesAreNeverLinked)
{
    TCircuitParams store;
    store.AddSubckt("top", 0);
    store.AddOpticalClass(gClass("LASER", "laser", 1, {}, {}, {}));
    EXPECT_EQ(store.GetModelClass("LASER"), nullptr);
    store.AddModel(gModel(0, "l1", "LASER", "laser"));
    EXPECT_EQ(store.GetModelData(0, "l1")->mpModelClassDef, nullptr);
}

TEST(CircuitParamsTest, LookupsAreExact)
{
    TCircuitParams store;
    gFillSample(store);
    EXPECT_NE(store.GetModelData("top", "n1"), nullptr);
    EXPECT_NE(store.GetModelData("x1", "n2"), nullptr);
    EXPECT_EQ(store.GetModelData("x1", "n1"), nullptr);
    EXPECT_EQ(store.GetModelData(0, "N1"), nullptr);
    EXPECT_EQ(store.GetModelData(7, "n1"), nullptr);
    EXPECT_NE(store.GetDeviceData("top", "m1"), nullptr);
    EXPECT_EQ(store.GetDeviceData("TOP", "m1"), nullptr);
    EXPECT_EQ(store.GetDeviceData("top", "M1"), nullptr);
    EXPECT_EQ(store.GetDeviceData(7, "m1"), nullptr);
}

TEST(CircuitParamsTest, TheIdMinus1HasNoDevices)
{
    TCircuitParams store;
    store.AddSubckt("odd", -1);
    store.AddDevice(gDevice(-1, "m1", {}));
    EXPECT_EQ(store.GetDeviceData(-1, "m1"), nullptr);
    EXPECT_EQ(store.GetDeviceData("unknown", "m1"), nullptr);
    store.AddModel(gModel(-1, "n1", "MOS1", "nmos"));
    EXPECT_NE(store.GetModelData(-1, "n1"), nullptr); // models have no such rule
    EXPECT_NE(store.GetModelData("unknown", "n1"), nullptr);
}

TEST(CircuitParamsTest, LookupsLinkAnew)
{
    TCircuitParams store;
    gFillSample(store);
    const TModelData& rModel = store.mCircuitModelDatasets.at(0).at("n1");
    const TDeviceData& rDevice = store.mCircuitDeviceDatasets.at(0).at("m1");
    rModel.mpModelClassDef = nullptr;
    rDevice.mpModelClassDef = nullptr;
    rDevice.mpModelData = nullptr;
    ASSERT_EQ(store.GetDeviceData(0, "m1"), &rDevice);
    EXPECT_EQ(rDevice.mpModelClassDef, store.GetModelClass("MOS1"));
    EXPECT_EQ(rDevice.mpModelData, &rModel);
    EXPECT_EQ(rModel.mpModelClassDef, store.GetModelClass("MOS1")); // by the way of the device
    store.mModelClasses.clear();
    EXPECT_EQ(store.GetModelData(0, "n1")->mpModelClassDef, nullptr);
    EXPECT_EQ(store.GetDeviceData(0, "m1")->mpModelClassDef, nullptr);
}

TEST(CircuitParamsTest, DevicesInAnyCase)
{
    TCircuitParams store;
    gFillSample(store);
    const TDeviceData* const pM2 = store.GetDeviceData("x1", "M2");
    EXPECT_EQ(store.GetDeviceDataNoCase("X1", "m2"), pM2);
    EXPECT_EQ(store.GetDeviceDataNoCase("x1", "M2"), pM2);
    EXPECT_EQ(store.GetDeviceDataNoCase("TOP", "M1"), store.GetDeviceData("top", "m1"));
    EXPECT_EQ(store.GetDeviceDataNoCase("top", "m2"), nullptr);
    EXPECT_EQ(store.GetDeviceDataNoCase("other", "m2"), nullptr);
    EXPECT_EQ(store.mDeviceNameIndex.size(), 3U);
}

TEST(CircuitParamsTest, OfDevicesThatDifferInCaseTheFirstInTheMapIsFound)
{
    TCircuitParams store;
    store.AddSubckt("top", 0);
    store.AddDevice(gDevice(0, "ab", {}));
    store.AddDevice(gDevice(0, "AB", {}));
    store.AddDevice(gDevice(0, "Ab", {}));
    EXPECT_EQ(store.mCircuitDeviceDatasets.at(0).begin()->first, "AB");
    EXPECT_EQ(store.GetDeviceDataNoCase("top", "aB")->mDeviceHeader.msName, "AB");
    EXPECT_EQ(store.mDeviceNameIndex.size(), 1U);
}

// Not that of the lesser name, which is "X1".
TEST(CircuitParamsTest, OfSubcircuitsThatDifferInCaseThatOfTheLowerIdIsFound)
{
    TCircuitParams store;
    store.AddSubckt("x1", 1);
    store.AddSubckt("X1", 2);
    store.AddDevice(gDevice(1, "m1", {}));
    store.AddDevice(gDevice(2, "m1", {}));
    ASSERT_LT(CStringU("X1"), CStringU("x1"));
    for (const char* const pSubckt : {"x1", "X1"}) {
        EXPECT_EQ(store.GetDeviceDataNoCase(pSubckt, "M1"), store.GetDeviceData(1, "m1"));
    }
    EXPECT_EQ(store.mDeviceNameIndex.size(), 1U);
}

TEST(CircuitParamsTest, TheDeviceIndexIsFilledOnce)
{
    TCircuitParams store;
    store.AddSubckt("top", 0);
    EXPECT_EQ(store.GetDeviceDataNoCase("top", "m1"), nullptr);
    store.AddDevice(gDevice(0, "m1", {})); // the index was empty, and is so still
    EXPECT_NE(store.GetDeviceDataNoCase("TOP", "M1"), nullptr);
    store.AddDevice(gDevice(0, "m2", {}));
    EXPECT_EQ(store.GetDeviceDataNoCase("TOP", "M2"), nullptr);
}

TEST(CircuitParamsTest, AGapInTheTableIsASubcircuitWithoutAName)
{
    TCircuitParams store;
    store.AddSubckt("x5", 5);
    store.AddDevice(gDevice(3, "m1", {}));
    EXPECT_EQ(store.GetDeviceDataNoCase("", "M1"), nullptr); // in the index, but no name has its id
    EXPECT_EQ(store.mDeviceNameIndex.size(), 1U);
}

TEST(CircuitParamsTest, DeviceListOfOneAndOfAll)
{
    TCircuitParams store;
    gFillSample(store);
    EXPECT_THAT(Shown(store.GetDeviceList(0)), ElementsAre("0 m1 nmos 0 n1"));
    EXPECT_THAT(Shown(store.GetDeviceList(1)), ElementsAre("1 M2 nmos 1 n2", "1 r10  0 "));
    EXPECT_THAT(Shown(store.GetDeviceList(-1)),
                ElementsAre("0 m1 nmos 0 n1", "1 M2 nmos 1 n2", "1 r10  0 "));
    EXPECT_THAT(store.GetDeviceList(7), IsEmpty());
    EXPECT_THAT(store.GetDeviceList(-2), IsEmpty());
}

TEST(CircuitParamsTest, ListsAreInTheOrderOfTheMap)
{
    TCircuitParams store;
    store.AddSubckt("top", 0);
    for (const char* const pName : {"zz9", "ab", "abc9", "abd1"}) {
        store.AddDevice(gDevice(0, pName, {}));
    }
    EXPECT_THAT(Shown(store.GetDeviceList(-1)),
                ElementsAre("0 ab  0 ", "0 zz9  0 ", "0 abd1  0 ", "0 abc9  0 "));
}

TEST(CircuitParamsTest, ModelListLinksByNameAndLeavesOutWhatHasNoClass)
{
    TCircuitParams store;
    gFillSample(store);
    store.AddModel(gModel(1, "lost", "none", "x"));
    const auto expected = ElementsAre("0 n1 nmos 1 MOS1", "1 n2 nmos 1 MOS1");
    EXPECT_THAT(Shown(store.GetModelList()), expected);
    store.mCircuitModelDatasets.at(0).at("n1").mpModelClassDef = nullptr;
    EXPECT_THAT(Shown(store.GetModelList()), expected); // linked on the way
}

TEST(CircuitParamsTest, ModelListIsTheSameWhateverWasLookedAtBefore)
{
    TCircuitParams store;
    gFillSample(store);
    store.AddOpticalClass(gClass("LASER", "laser", 2, {}, {}, {}));
    store.AddModel(gModel(1, "las", "LASER", "laser"));
    // As a file may have it, though the name leads to no class that models have.
    store.mCircuitModelDatasets.at(1).at("las").mpModelClassDef =
        &store.mOpticalClasses.at("LASER");
    const auto expected = ElementsAre("0 n1 nmos 1 MOS1", "1 n2 nmos 1 MOS1");
    EXPECT_THAT(Shown(store.GetModelList()), expected);
    EXPECT_NE(store.GetModelData(1, "las"), nullptr);
    EXPECT_THAT(Shown(store.GetModelList()), expected);
}

} // namespace
