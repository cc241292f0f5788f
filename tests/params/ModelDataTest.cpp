#include "params/PrintParams.h"
#include "params/SampleStore.h"

#include <boost/variant/get.hpp>
#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

namespace
{

static_assert(std::is_base_of_v<std::vector<TParamDef>, TParamDefs>);
static_assert(std::is_convertible_v<TParamDefs*, std::vector<TParamDef>*>); // publicly
static_assert(sizeof(TParamDefs) == sizeof(std::vector<TParamDef>));

/// "name=value", with a star where the value is set.
std::string Shown(const std::vector<TParamDef>& rParams)
{
    std::string sShown;
    for (const TParamDef& rParam : rParams) {
        sShown += sShown.empty() ? "" : " ";
        sShown += std::string(rParam.msName.Text()) + '=' +
                  std::string(ParamValueToText(rParam.mValue).Text());
        sShown += rParam.mIsSet ? "*" : "";
    }
    return sShown;
}

TEST(MergeTest, SetValuesInTheOrderOfTheClass)
{
    const TParamDefs defs{gDef("b", 1), gDef("a", 2.5), gDef("c", CStringU("text"))};
    EXPECT_EQ(Shown(gMergeParams(defs, {})), "b=1 a=2.5 c=text");
    EXPECT_EQ(Shown(gMergeParams(defs, {{"a", true}, {"c", 7}})), "b=1 a=true* c=7*");
}

TEST(MergeTest, AValueWithoutADefinitionNeverReachesATable)
{
    EXPECT_EQ(Shown(gMergeParams({gDef("a", 1)}, {{"x", 2}})), "a=1");
}

TEST(MergeTest, NamesAreExactAndAliasesPlayNoPart)
{
    TParamDef def = gDef("a", 1);
    def.mAliases = {"x"};
    EXPECT_EQ(Shown(gMergeParams({def}, {{"A", 2}, {"x", 3}})), "a=1");
}

TEST(MergeTest, AStoredIsSetStays)
{
    TParamDef def = gDef("a", 1);
    def.mIsSet = true;
    EXPECT_EQ(Shown(gMergeParams({def}, {})), "a=1*");
}

TEST(ModelDataTest, ParamsAreMergedOnceAndKept)
{
    TCircuitParams store;
    gFillSample(store);
    const TModelData* const pModel = store.GetModelData(0, "n1");
    ASSERT_NE(pModel, nullptr);
    EXPECT_EQ(Shown(pModel->GetParams()), "vto=650m* kp=20u");
    store.mCircuitModelDatasets[0]["n1"].mModelParamValues["kp"] = 1.0;
    EXPECT_EQ(Shown(pModel->GetParams()), "vto=650m* kp=20u"); // never invalidated
    EXPECT_EQ(&pModel->GetParams(), &pModel->mMergedParams);
}

TEST(ModelDataTest, WithoutAClassThereAreNoParams)
{
    TModelData model = gModel(0, "n1", "none", "nmos");
    model.mModelParamValues["vto"] = 1.0;
    EXPECT_TRUE(model.GetParams().empty());
    TCircuitParams store;
    model.LinkClass(store);
    EXPECT_EQ(model.mpModelClassDef, nullptr);
    EXPECT_TRUE(model.GetParams().empty());
    store.AddModelClass(gClass("none", "nmos", 1, {gDef("vto", 0.7)}, {}, {}));
    model.LinkClass(store);
    EXPECT_EQ(Shown(model.GetParams()), "vto=1*");
}

struct TLookupCase {
    std::string msName;
    CStringU msParam;
    TParamValue mExpected;
};

TEST(ModelDataTest, ValuesByName)
{
    TModelData model;
    model.mModelParamValues = {{"Vto", 0.7},   {"VTO", 0.8},   {"zero", 0},
                               {"off", false}, {u"\u00C4", 1}, {"long name", CStringU("x")}};
    const std::vector<TLookupCase> cases{
        {"exact", "Vto", 0.7},
        {"exact wins over the index", "VTO", 0.8},
        // "VTO" comes before "Vto": the last of equally many bytes decides.
        {"of two the first in the map's order", "vto", 0.8},
        {"a stored int 0 stays an int", "zero", 0},
        {"and so in another case", "ZERO", 0},
        {"a stored false", "OFF", false},
        {"another case beyond ASCII", u"\u00E4", 1},
        {"a text", "LONG NAME", CStringU("x")},
        {"an absent name gives false", "kp", false},
        {"an empty name gives false", "", false},
    };
    for (const auto& row : cases) {
        EXPECT_TRUE(model.GetParamValue(row.msParam) == row.mExpected) << row.msName;
    }
}

TEST(ModelDataTest, TheIndexIsMadeByTheFirstInexactLookup)
{
    TModelData model;
    model.mModelParamValues = {{"vto", 0.7}, {"kp", 1}};
    static_cast<void>(model.GetParamValue("vto"));
    EXPECT_TRUE(model.mParamNameIndex.empty());
    static_cast<void>(model.GetParamValue("VTO"));
    EXPECT_EQ(model.mParamNameIndex.size(), 2U);
    EXPECT_EQ(model.mParamNameIndex.at("KP"), "kp");
}

TEST(DeviceDataTest, DeviceAndStateParamsAreMergedAnew)
{
    TCircuitParams store;
    gFillSample(store);
    const TDeviceData* const pDevice = store.GetDeviceData(0, "m1");
    ASSERT_NE(pDevice, nullptr);
    EXPECT_EQ(Shown(pDevice->GetModelParams()), "vto=650m* kp=20u");
    EXPECT_EQ(Shown(pDevice->GetDeviceParams()), "w=2u* l=1u");
    EXPECT_EQ(Shown(pDevice->GetStateParams()), "vgs=<uninitialized> on=true*");
    store.mCircuitDeviceDatasets[0]["m1"].mDeviceParamValues["l"] = 3e-6;
    EXPECT_EQ(Shown(pDevice->GetDeviceParams()), "w=2u* l=3u*");
}

TEST(DeviceDataTest, WithoutAModelInTheDatasetThereAreNoModelParams)
{
    TCircuitParams store;
    gFillSample(store);
    store.AddDevice(gDevice(0, "m9", {0, "absent", "MOS1", "nmos"}));
    const TDeviceData* const pDevice = store.GetDeviceData(0, "m9");
    ASSERT_NE(pDevice, nullptr);
    EXPECT_EQ(pDevice->mpModelData, nullptr);
    EXPECT_TRUE(pDevice->GetModelParams().empty());
    EXPECT_EQ(Shown(pDevice->GetDeviceParams()), "w=1u l=1u"); // the class is there
}

TEST(DeviceDataTest, WithoutAClassThereAreNoParams)
{
    TCircuitParams store;
    gFillSample(store);
    const TDeviceData* const pDevice = store.GetDeviceData(1, "r10");
    ASSERT_NE(pDevice, nullptr);
    EXPECT_EQ(pDevice->mpModelClassDef, nullptr);
    EXPECT_TRUE(pDevice->GetDeviceParams().empty());
    EXPECT_TRUE(pDevice->GetStateParams().empty());
}

TEST(DeviceDataTest, ValuesByNameAreThoseOfTheDevice)
{
    TDeviceData device;
    device.mDeviceParamValues = {{"w", 2}};
    device.mStateParamValues = {{"vgs", 3}};
    EXPECT_TRUE(device.GetParamValue("W") == TParamValue(2));
    EXPECT_TRUE(device.GetParamValue("vgs") == TParamValue(false));
    EXPECT_EQ(device.mParamNameIndex.size(), 1U);
}

} // namespace
