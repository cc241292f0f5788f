// All that an import tells about a device or a model is what the simulator itself shows.

#include "params/CircuitParams.h"
#include "simulators/TellValue.h"
#include "simulators/ngspice/Import.h"
#include "simulators/ngspice/cards/FlatName.h"
#include "simulators/ngspice/listings/ShownDevices.h"
#include "simulators/ngspice/listings/ShownModels.h"
#include "simulators/ngspice/netlist/NetlistCopy.h"
#include "simulators/ngspice/process/Commands.h"
#include "simulators/ngspice/process/PrivateFolder.h"
#include "support/RunProgram.h"
#include "support/TempFolder.h"

#include <boost/variant/get.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{
namespace
{

using ::testing::IsEmpty;

/// What derives values of its own from what is given, for devices and for models.
constexpr const char* kDerived = R"(title
.options temp=50
v1 a 0 1
q1 a a 0 qm area=4
q2 a a 0 qp ic=1,2
.model qm npn(rb=10 bf=50)
.model qp pnp(is=1e-15)
d1 a 0 dm pj=2u m=3
.model dm d(n=1.7 cjo=1p)
r1 a 0 rm l=10u w=1u
.model rm r(rsh=50)
c1 a 0 cm l=10u w=1u
.model cm c(cj=1m)
m1 a a 0 0 nm w=2u l=1u
.model nm nmos level=14 toxe=1.85n
m2 a a 0 0 n3 w=2u l=1u
.model n3 nmos level=8 tox=5n
j1 a a 0 jm 2
.model jm njf(beta=1m)
e1 e 0 a 0 2
re e 0 1
g1 a 0 a 0 2m
f1 a 0 v1 3
h1 h 0 v1 3
rh h 0 1
l1 x 0 1u
rx x 0 10
s1 a 0 a 0 sm
.model sm sw(ron=2)
w1 a 0 v1 wm
.model wm csw(ron=3)
t1 a 0 t 0 z0=75 td=2n ic=1,2,3,4
rt t 0 75
)";

/// Whether a value is the one of a listing. Texts, and numbers that aren't set, say nothing else.
bool IsShown(const TParamValue& rValue, std::string_view sShown)
{
    const std::string sText(sShown);
    if (const bool* const pFlag = boost::get<bool>(&rValue)) {
        // A type, "npn", is a flag that only its card tells; what is shown of it is memory.
        return sText == (*pFlag ? "1" : "0") || (sText != "0" && sText != "1");
    }
    if (const int* const pInt = boost::get<int>(&rValue)) {
        return sText == std::to_string(*pInt);
    }
    if (const double* const pNumber = boost::get<double>(&rValue)) {
        const double dShown = std::strtod(sText.c_str(), nullptr);
        return gIsUninitialized(*pNumber) || std::abs(*pNumber - dShown) <= 1e-5 * std::abs(dShown);
    }
    return true;
}

class ImportShownValues : public ::testing::TestWithParam<const char*>
{
protected:
    void Compare(const std::vector<TParamDef>& rParams, const TShownValues& rShown,
                 std::string_view sWhose)
    {
        for (const TShownValue& rValue : rShown) {
            const auto param =
                std::ranges::find(rParams, CStringU(rValue.sName), &TParamDef::msName);
            if (param == rParams.end()) {
                continue;
            }
            ++mnCompared;
            if (!IsShown(param->mValue, rValue.sValue)) {
                mOther.push_back(std::string(sWhose) + " " + std::string(rValue.sName) + " is " +
                                 gTellValue(param->mValue) + ", shown " +
                                 std::string(rValue.sValue));
            }
        }
    }

    std::vector<std::string> mOther;
    std::size_t mnCompared = 0;
};

TEST_P(ImportShownValues, OfDevicesAndModels)
{
    const CTempFolder users;
    const std::string sNetlist = *GetParam() == '\0'
                                     ? users.Write("derived.cir", kDerived)
                                     : QUORVAWIZ_SOURCE_DIR "/examples/" + std::string(GetParam());
    TImportOptions options;
    options.netlist = sNetlist;
    const auto pStore = gImport(options).pStore;

    const CPrivateFolder folder;
    CNetlistCopy copy(folder);
    folder.Write("all.cir", copy.Copy(sNetlist) + gListingCommands());
    ASSERT_EQ(
        gRunProgram("env", {"-C", folder.GetPath().string(), "ngspice", "-n", "-b", "all.cir"})
            .nExitCode,
        0);

    const std::string sShow = folder.Read(files::kShow);
    CShownDevices devices(sShow);
    for (TShownDevice shown; devices.Next(shown);) {
        const TFlatName name = gSplitDeviceName(shown.sName, copy.GetInstances());
        std::string sSubckt;
        for (const std::string& rsInstance : name.instances) {
            sSubckt += (sSubckt.empty() ? "" : ".") + rsInstance;
        }
        const TDeviceData* const pDevice = pStore->GetDeviceData(
            CStringU(sSubckt.empty() ? "top" : sSubckt), CStringU(name.sName));
        ASSERT_NE(pDevice, nullptr) << shown.sName;
        Compare(pDevice->GetDeviceParams(), shown.values, shown.sName);
        Compare(pDevice->GetStateParams(), shown.values, shown.sName);
    }
    const std::string sShowMod = folder.Read(files::kShowMod);
    for (const TShownModel& rShown : gReadShownModels(sShowMod)) {
        const TModelData* const pModel = pStore->GetModelData("top", CStringU(rShown.sName));
        if (pModel != nullptr) {
            Compare(pModel->GetParams(), rShown.values, rShown.sName);
        }
    }
    EXPECT_THAT(mOther, IsEmpty());
    EXPECT_GT(mnCompared, 40U);
}

INSTANTIATE_TEST_SUITE_P(Netlists, ImportShownValues,
                         ::testing::Values("", "rc-filter.cir", "bjt-amplifier.cir",
                                           "ring-oscillator.cir", "diode-clamp.cir"));

} // namespace
} // namespace quorvawiz::ngspice
