// Classes and a store of recorded listings.

#include "simulators/ngspice/FillStore.h"

#include "params/CircuitParams.h"
#include "simulators/Recorded.h"
#include "simulators/TellValue.h"
#include "simulators/ngspice/catalogue/BareCircuits.h"
#include "simulators/ngspice/catalogue/Catalogue.h"
#include "support/PrintStringU.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace quorvawiz::ngspice
{
namespace
{

using ::testing::ElementsAre;

CCatalogue RecordedCatalogue()
{
    return CCatalogue({gRecorded("tables.txt"),
                       {{"BJT", gRecorded("bare-show.txt"), gRecorded("bare-showmod.txt")}}});
}

const TParamDef* FindDef(const TParamDefs& rDefs, const char* pName)
{
    const auto found = std::ranges::find(rDefs, CStringU(pName), &TParamDef::msName);
    return found != rDefs.end() ? &*found : nullptr;
}

std::string Default(const TParamDefs& rDefs, const char* pName)
{
    const TParamDef* const pDef = FindDef(rDefs, pName);
    return pDef != nullptr ? gTellValue(pDef->mValue) : "no such parameter";
}

TEST(Catalogue, MakesAClassOfATable)
{
    const CCatalogue catalogue = RecordedCatalogue();
    EXPECT_EQ(catalogue.GetAll().size(), 6U);
    const TClass* const pClass = catalogue.Find("BJT");
    ASSERT_NE(pClass, nullptr);
    const TModelClassDef& rDef = pClass->def;
    EXPECT_EQ(rDef.mHeader.msName, CStringU("BJT"));
    EXPECT_EQ(rDef.mHeader.msType, CStringU("npn"));
    EXPECT_EQ(rDef.mHeader.mnLevel, 1);
    EXPECT_EQ(rDef.mHeader.msDescription, CStringU("Bipolar Junction Transistor"));
    EXPECT_EQ(rDef.mModelParamDefs.size(), 134U);
    EXPECT_EQ(rDef.mDeviceParamDefs.size(), 11U);
    EXPECT_EQ(rDef.mStateParamDefs.size(), 42U);
}

TEST(Catalogue, NamesOfOneIdAreAliases)
{
    const CCatalogue catalogue = RecordedCatalogue();
    const TParamDefs& rDefs = catalogue.Find("BJT")->def.mModelParamDefs;
    const TParamDef* const pDef = FindDef(rDefs, "cjs");
    ASSERT_NE(pDef, nullptr);
    EXPECT_THAT(pDef->mAliases, ElementsAre(CStringU("ccs"), CStringU("csub")));
    EXPECT_EQ(FindDef(rDefs, "csub"), nullptr);
    EXPECT_EQ(FindDef(rDefs, "vaf")->msDescription, CStringU("Forward Early voltage"));
}

TEST(Catalogue, ABareCircuitGivesTheDefaults)
{
    const CCatalogue catalogue = RecordedCatalogue();
    const TModelClassDef& rBipolar = catalogue.Find("BJT")->def;
    EXPECT_EQ(Default(rBipolar.mModelParamDefs, "bf"), "double 100");
    EXPECT_EQ(Default(rBipolar.mModelParamDefs, "tlev"), "int 0");
    EXPECT_EQ(Default(rBipolar.mDeviceParamDefs, "area"), "double 1");
    EXPECT_EQ(Default(rBipolar.mDeviceParamDefs, "off"), "bool false");
    EXPECT_EQ(Default(rBipolar.mDeviceParamDefs, "temp"), "double 27");
    // What the simulator shows of them is memory that it never filled.
    EXPECT_EQ(Default(rBipolar.mModelParamDefs, "subs"), "none");
    EXPECT_EQ(Default(rBipolar.mModelParamDefs, "pnp"), "none");
    // The bare model is of that type, so that this isn't a default.
    EXPECT_EQ(Default(rBipolar.mModelParamDefs, "npn"), "none");
    // A state has none.
    EXPECT_EQ(Default(rBipolar.mStateParamDefs, "vbe"), "none");
    // There is no bare circuit of this class among the listings.
    EXPECT_EQ(Default(catalogue.Find("Diode")->def.mModelParamDefs, "is"), "none");
}

TEST(Catalogue, FindsClasses)
{
    const CCatalogue catalogue = RecordedCatalogue();
    EXPECT_EQ(catalogue.Find("bjt"), nullptr);
    EXPECT_EQ(catalogue.FindByLetter('R'), catalogue.Find("Resistor"));
    EXPECT_EQ(catalogue.FindByLetter('v'), catalogue.Find("Vsource"));
    EXPECT_EQ(catalogue.FindByLetter('L'), nullptr); // its table isn't among the listings
    EXPECT_EQ(catalogue.FindByLetter('?'), nullptr);
    EXPECT_EQ(catalogue.FindByModelType("GAIN"), catalogue.Find("gain"));
    EXPECT_EQ(catalogue.FindByModelType("npn"), nullptr);
}

TEST(Catalogue, EveryBareCircuitHasItsDevice)
{
    for (const TBareCircuit& rCircuit : gBareCircuits()) {
        EXPECT_NE(rCircuit.sCards.find(kBareDevice), std::string_view::npos) << rCircuit.sClass;
        EXPECT_TRUE(rCircuit.sCards.ends_with('\n')) << rCircuit.sClass;
        const bool bModel = rCircuit.sCards.find(".model dutmodel ") != std::string_view::npos;
        EXPECT_EQ(bModel, rCircuit.nLevel > 0) << rCircuit.sClass;
        EXPECT_EQ(gFindBareCircuit(rCircuit.sClass), &rCircuit);
    }
    EXPECT_EQ(gFindBareCircuit("gain"), nullptr);
}

class FillStore : public ::testing::Test
{
protected:
    FillStore()
    {
        const std::string sShow = gRecorded("show.txt");
        const std::string sShowMod = gRecorded("showmod.txt");
        const std::string sExpand = gRecorded("expand.txt");
        mFilled = gFillStore(RecordedCatalogue(), {sShow, sShowMod, sExpand, {"x1", "xtop"}},
                             "ngspice-39, netlist.cir", mStore);
    }

    std::string ValuesOfModel(const char* pSubckt, const char* pName) const
    {
        const TModelData* const pModel = mStore.GetModelData(CStringU(pSubckt), CStringU(pName));
        return pModel != nullptr ? gTellValues(pModel->mModelParamValues) : "no such model";
    }

    const TDeviceData* Device(const char* pSubckt, const char* pName) const
    {
        return mStore.GetDeviceData(CStringU(pSubckt), CStringU(pName));
    }

    std::string ValuesOf(const char* pSubckt, const char* pName) const
    {
        const TDeviceData* const pDevice = Device(pSubckt, pName);
        return pDevice != nullptr ? gTellValues(pDevice->mDeviceParamValues) : "no such device";
    }

    TCircuitParams mStore;
    TFilled mFilled;
};

TEST_F(FillStore, Counts)
{
    EXPECT_EQ(mFilled.nDevices, 13U);
    EXPECT_EQ(mFilled.nModels, 6U);
    EXPECT_EQ(mFilled.nWithoutClass, 0U);
}

TEST_F(FillStore, SubcircuitsAreThePathsOfTheirInstances)
{
    EXPECT_THAT(mStore.mSubcktTable.mTable,
                ElementsAre(CStringU("top"), CStringU("xtop"), CStringU("xtop.x1")));
}

TEST_F(FillStore, ClassesTellWhereTheyAreFrom)
{
    EXPECT_EQ(mStore.GetModelClass("Diode")->mHeader.msDescription,
              CStringU("Junction Diode model (ngspice-39, netlist.cir)"));
}

TEST_F(FillStore, ModelsHaveWhatTheirCardsGive)
{
    EXPECT_EQ(ValuesOfModel("xtop", "dlocal"), "d: bool true; is: double 10f; rs: double 3");
    EXPECT_EQ(ValuesOfModel("xtop.x1", "dlocal"), "d: bool true; is: double 20f");
    EXPECT_EQ(ValuesOfModel("top", "rmod"), "rsh: double 100; tc1: double 1m");
    EXPECT_EQ(ValuesOfModel("top", "gg"), "gain: double 3");
    EXPECT_EQ(ValuesOfModel("top", "R"), "no such model");
}

TEST_F(FillStore, ModelsWhoseNamesAreCutAlikeAreToldApart)
{
    EXPECT_EQ(ValuesOfModel("xtop", "a_name_that_is_cut_one"),
              "bf: double 150; npn: bool true; vaf: double 80");
    EXPECT_EQ(ValuesOfModel("xtop", "a_name_that_is_cut_two"), "bf: double 20; npn: bool true");
}

struct TDeviceCase {
    const char* pSubckt;
    const char* pName;
    const char* pValues;
};

TEST_F(FillStore, DevicesHaveWhatTheirCardsGive)
{
    constexpr TDeviceCase cases[] = {
        {"xtop", "q9", "area: double 2"},
        {"xtop", "q10", "m: double 3; off: bool true"},
        {"xtop.x1", "d2", "ic: double 500m; off: bool true"},
        {"xtop", "d1", ""},
        {"xtop", "r1", "tc: double 1m; resistance: double 1k"},
        {"xtop.x1", "r1", "resistance: double 2k"},
        {"top", "r3", "l: double 20u; w: double 2u"},
        {"top", "r6", "m: double 3; resistance: double 1X"},
        {"top", "c1", "ic: double 200m; capacitance: double 1p"},
        {"top", "vdd", "dc: double 3"},
        {"top", "vin",
         "ac: text 1 45; dc: double 700m; sin: text 0.7 0.1 1000; acmag: double 1; acphase: "
         "double 45"},
        {"top", "a1", ""},
    };
    for (const TDeviceCase& rCase : cases) {
        EXPECT_EQ(ValuesOf(rCase.pSubckt, rCase.pName), rCase.pValues) << rCase.pName;
    }
}

TEST_F(FillStore, DevicesNameTheirModelAndClass)
{
    const TDeviceData* const pDiode = Device("xtop.x1", "d2");
    ASSERT_NE(pDiode, nullptr);
    EXPECT_EQ(pDiode->mModelHeader.mnSubckt, 2);
    EXPECT_EQ(pDiode->mModelHeader.msName, CStringU("dlocal"));
    EXPECT_EQ(pDiode->mModelHeader.msType, CStringU("d"));
    EXPECT_EQ(pDiode->mpModelData, mStore.GetModelData(2, "dlocal"));
    const TDeviceData* const pResistor = Device("top", "r5");
    ASSERT_NE(pResistor, nullptr);
    EXPECT_TRUE(pResistor->mModelHeader.msName.IsEmpty());
    EXPECT_EQ(pResistor->mModelHeader.msType, CStringU("r"));
    EXPECT_EQ(pResistor->mpModelData, nullptr);
    EXPECT_EQ(pResistor->mpModelClassDef, mStore.GetModelClass("Resistor"));
}

TEST_F(FillStore, AStateHasWhatIsToBeBelieved)
{
    const TDeviceData* const pDevice = Device("top", "r5");
    ASSERT_NE(pDevice, nullptr);
    EXPECT_EQ(pDevice->mStateParamValues.count("i"), 1U);
    EXPECT_EQ(pDevice->mStateParamValues.count("p"), 1U);
    EXPECT_EQ(pDevice->mStateParamValues.count("sens_dc"), 0U);
    for (const TParamDef& rParam : pDevice->GetStateParams()) {
        if (rParam.msName == CStringU("sens_dc")) {
            EXPECT_EQ(gTellValue(rParam.mValue), "none");
        }
    }
}

TEST(FillStoreFromOther, NothingComesOfNothing)
{
    TCircuitParams store;
    const TFilled filled = gFillStore(CCatalogue({}), {}, "", store);
    EXPECT_EQ(filled.nDevices, 0U);
    EXPECT_TRUE(store.mModelClasses.empty());
    EXPECT_THAT(store.mSubcktTable.mTable, ElementsAre(CStringU("top")));
}

TEST(FillStoreFromOther, ADeviceOfAnUnknownClassIsThere)
{
    TCircuitParams store;
    const TFilled filled =
        gFillStore(CCatalogue({}),
                   {"z1:\n    model = m\n    x = 1\n", "", "1 : z1 a b m x=1\n", {}}, "", store);
    EXPECT_EQ(filled.nWithoutClass, 1U);
    const TDeviceData* const pDevice = store.GetDeviceData(0, "z1");
    ASSERT_NE(pDevice, nullptr);
    EXPECT_TRUE(pDevice->mModelHeader.msClass.IsEmpty());
    EXPECT_TRUE(pDevice->mDeviceParamValues.empty());
}

} // namespace
} // namespace quorvawiz::ngspice
