// Imports of what cards give without a name, as expressions or under odd names, and what of the
// simulator's bare circuits must not come into a file.

#include "params/CircuitParams.h"
#include "simulators/TellValue.h"
#include "simulators/ngspice/Import.h"
#include "support/TempFolder.h"

#include <boost/smart_ptr/shared_ptr.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kNetlist = R"(title
V1 a 0 1
V3 c 0 2
E1 e 0 a c 2
Re e 0 1
G1 a 0 a c 2m m=3
F1 a 0 V1 3
F3 a 0 V1 gain=3
H1 h 0 V3 3
Rh h 0 1
W1 a 0 V1 wm
.model wm csw
S1 a 0 a c sm on
.model sm sw
L1 x 0 l=1u
Rx x 0 1
L2 y 0 2u
Ry y 0 1
K1 L1 L2 0.5
B1 b 0 v=(v(a)+1)*2
B2 a 0 i=1u+v(a,c)*2u tc1=1m temp=30
R6 a 0 r='1k+v(a)'
Y1 a 0 z 0 ym len=3
.model ym txl r=1 l=1n g=0 c=1p length=1
Rz z 0 1
P1 a p2 0 p3 p4 0 pm len=2
.model pm cpl r=1 0 1 l=1n 0.1n 1n g=0 0 0 c=1p -0.1p 1p length=1
Rp2 p2 0 1
Rp3 p3 0 1
Rp4 p4 0 1
.subckt inv in out
.model nloc nmos level=1
M1 out in 0 0 nloc
Rbig out 0 1meg
.ends
xq.1 a q1 inv
X.dot a q2 inv
D.x1.d1 a 0 dm
.model dm d
)";

class ImportOddDevices : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        const CTempFolder folder;
        TImportOptions options;
        options.netlist = folder.Write("netlist.cir", kNetlist);
        spStore = gImport(options).pStore;
    }

    static void TearDownTestSuite() { spStore.reset(); }

    static inline boost::shared_ptr<TCircuitParams> spStore;
};

struct TCase {
    const char* pDevice;
    const char* pValues;
};

TEST_F(ImportOddDevices, HaveWhatTheirCardsGive)
{
    constexpr TCase cases[] = {
        {"e1", "gain: double 2"},
        {"g1", "m: double 3; gain: double 6m"},
        {"f1", "gain: double 3; control: text v1"},
        {"f3", "gain: double 3; control: text v1"},
        {"h1", "gain: double 3; control: text v3"},
        {"w1", "control: text v1"},
        {"l1", "inductance: double 1u"},
        {"k1", "k: double 707.107n; inductor1: text l1; inductor2: text l2"},
        {"b1", "v: text ( v(a) + 1.0000000000e+00 ) * 2.0000000000e+00"},
        {"b2", "i: text 1.0000000000e-06 + v(a,c) * 2.0000000000e-06; tc1: double 1m; "
               "temp: double 30"},
        {"br6", "i: text v(a, 0) / ( 1.0000000000e+03 + v(a) ); reciprocm: int 0; reciproctc: "
                "int 1"},
        {"y1", "length: double 3"},
        {"p1", "length: double 2; dimension: int 2; neg_nodes: text p3 p4; pos_nodes: text a p2"},
        {"d.x1.d1", ""},
    };
    for (const TCase& rCase : cases) {
        const TDeviceData* const pDevice = spStore->GetDeviceData(0, rCase.pDevice);
        ASSERT_NE(pDevice, nullptr) << rCase.pDevice;
        EXPECT_EQ(gTellValues(pDevice->mDeviceParamValues), rCase.pValues) << rCase.pDevice;
    }
}

TEST_F(ImportOddDevices, StandInTheInstancesOfTheNetlist)
{
    EXPECT_THAT(spStore->mSubcktTable.mTable,
                ElementsAre(CStringU("top"), CStringU("xq.1"), CStringU("x.dot")));
    for (const char* const pSubckt : {"xq.1", "x.dot"}) {
        for (const char* const pDevice : {"m1", "rbig"}) {
            EXPECT_NE(spStore->GetDeviceData(CStringU(pSubckt), CStringU(pDevice)), nullptr)
                << pSubckt << " " << pDevice;
        }
        EXPECT_NE(spStore->GetModelData(CStringU(pSubckt), CStringU("nloc")), nullptr) << pSubckt;
    }
}

bool IsNone(const TParamValue& rValue)
{
    const std::string sValue = gTellValue(rValue);
    return sValue == "none" || sValue == "text ";
}

/// What a device must be given, or follows from that, and so is the default of no class.
bool IsOfItsCard(std::string_view sClass, std::string_view sName)
{
    struct TParam {
        std::string_view sClass;
        std::string_view sName;
    };
    constexpr TParam params[] = {
        {"ASRC", "reciprocm"},      {"ASRC", "reciproctc"},    {"CCCS", "control"},
        {"CCCS", "gain"},           {"CCVS", "control"},       {"CCVS", "gain"},
        {"CSwitch", "control"},     {"CplLines", "dimension"}, {"CplLines", "length"},
        {"CplLines", "pos_nodes"},  {"CplLines", "neg_nodes"}, {"Capacitor", "capacitance"},
        {"Inductor", "inductance"}, {"Resistor", "ac"},        {"Resistor", "resistance"},
        {"Switch", "neg_node"},     {"Switch", "pos_node"},    {"TransLine", "length"},
        {"Tranline", "td"},         {"Tranline", "z0"},        {"URC", "l"},
        {"VCCS", "gain"},           {"VCVS", "gain"},          {"mutual", "inductor1"},
        {"mutual", "inductor2"},    {"mutual", "k"},
    };
    for (const TParam& rParam : params) {
        if (rParam.sClass == sClass && rParam.sName == sName) {
            return true;
        }
    }
    return sName.starts_with("pos_node") || sName.starts_with("neg_node");
}

TEST_F(ImportOddDevices, NothingThatABareCircuitGivesIsADefault)
{
    std::vector<std::string> leaked;
    int nOfCards = 0;
    for (const auto& [rsClass, rDef] : spStore->mModelClasses) {
        for (const TParamDef& rParam : rDef.mDeviceParamDefs) {
            if (IsOfItsCard(rsClass.Text(), rParam.msName.Text())) {
                ++nOfCards;
                if (!IsNone(rParam.mValue)) {
                    leaked.push_back(std::string(rsClass.Text()) + " " +
                                     std::string(rParam.msName.Text()));
                }
            }
        }
    }
    EXPECT_THAT(leaked, IsEmpty());
    EXPECT_GE(nOfCards, 26);
}

TEST_F(ImportOddDevices, TheMarkOfNoValueIsNoDefault)
{
    const TModelClassDef* const pClass = spStore->GetModelClass("MESA");
    ASSERT_NE(pClass, nullptr);
    int nFound = 0;
    for (const TParamDef& rParam : pClass->mModelParamDefs) {
        if (rParam.msName == CStringU("tlambda") || rParam.msName == CStringU("teta0")) {
            ++nFound;
            EXPECT_EQ(gTellValue(rParam.mValue), "none");
        }
    }
    EXPECT_EQ(nFound, 2);
}

} // namespace
} // namespace quorvawiz::ngspice
