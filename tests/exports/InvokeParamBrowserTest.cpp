#include "exports/Quorvawiz.h"
#include "params/SampleStore.h"
#include "support/Steps.h"
#include "support/TableLook.h"
#include "support/WizardRun.h"

#include <gtest/gtest.h>

#include <utility>

namespace
{

using namespace steps;
using namespace look;

class InvokeParamBrowser : public testing::Test
{
protected:
    InvokeParamBrowser() { gFillSample(mStore); }

    template <class TCall> void Play(CScript script, const TCall& rCall)
    {
        script.Run(mDesktop, rCall);
    }

    /// Asks for the details of a device.
    bool Details(const CStringU& rsSubckt, const CStringU& rsDevice, CScript script)
    {
        bool bResult = false;
        Play(std::move(script), [&] {
            bResult = quorvawiz::gInvokeDeviceDetailsDialog(nullptr, mStore, rsSubckt, rsDevice);
        });
        return bResult;
    }

    HeadlessDesktop mDesktop;
    TCircuitParams mStore;
    CWnd mParent;
};

TEST_F(InvokeParamBrowser, DevicesReturnsWhetherToRecalculate)
{
    for (const auto& [pButton, bWanted] : {std::pair{"recalculate", true}, {"close", false}}) {
        bool bResult = !bWanted;
        Play(
            CScript()
                .Then([this](CDialog& rDialog) { EXPECT_EQ(rDialog.GetOwner(), &mParent); })
                .Look({Title("Quorva Devices"), Rows({"m1|n1|nmos", "x1.M2|n2|nmos", "x1.r10||"})})
                .Do({Click(pButton)}),
            [&] { bResult = quorvawiz::gInvokeParamBrowserDevicesDialog(&mParent, mStore, true); });
        EXPECT_EQ(bResult, bWanted);
    }
}

TEST_F(InvokeParamBrowser, LibraryModelsReturnsWhetherToRecalculate)
{
    for (const auto& [pButton, bWanted] : {std::pair{"recalculate", true}, {"close", false}}) {
        bool bResult = !bWanted;
        Play(CScript()
                 .Then([this](CDialog& rDialog) { EXPECT_EQ(rDialog.GetOwner(), &mParent); })
                 .Look({Title("Library Models")})
                 .Do({Click(pButton)}),
             [&] {
                 bResult =
                     quorvawiz::gInvokeParamBrowserLibraryModelsDialog(&mParent, mStore, true);
             });
        EXPECT_EQ(bResult, bWanted);
    }
}

TEST_F(InvokeParamBrowser, RecalculateIsHiddenWhereItIsNotAllowed)
{
    Play(CScript().Look({Shown("recalculate", false)}).Do({Click("close")}), [this] {
        EXPECT_FALSE(quorvawiz::gInvokeParamBrowserDevicesDialog(nullptr, mStore, false));
    });
    Play(CScript().Look({Shown("recalculate", false)}).Do({Click("close")}), [this] {
        EXPECT_FALSE(quorvawiz::gInvokeParamBrowserLibraryModelsDialog(nullptr, mStore, false));
    });
}

TEST_F(InvokeParamBrowser, QuorvaModelsSelectsTheClass)
{
    mStore.AddModelClass(gClass("ABC", "npn", 1, {}, {}, {}));
    for (const auto& [pClass, nRow] : {std::pair{"MOS1", 1}, {"ABC", 0}, {"", 0}, {"none", 0}}) {
        Play(CScript()
                 .Then([this](CDialog& rDialog) { EXPECT_EQ(rDialog.GetOwner(), &mParent); })
                 .Look({Title("Quorva Models"), SelectedRow(nRow)})
                 .Do({Click("close")}),
             [&, pName = pClass] {
                 quorvawiz::gInvokeParamBrowserQuorvaModelsDialog(&mParent, mStore, pName);
             });
    }
}

TEST_F(InvokeParamBrowser, DetailsOfADeviceWithReevaluate)
{
    EXPECT_TRUE(Details("x1", "M2",
                        CScript()
                            .Look({Title("Device Parameters: x1.M2 (n2)"), Tabs("[Model]|Device")})
                            .Do({Click("reevaluate")})));
    EXPECT_FALSE(Details("top", "m1",
                         CScript()
                             .Look({Title("Device Parameters: top.m1 (n1)"), Shown("reevaluate")})
                             .Do({Click("close")})));
    EXPECT_FALSE(Details("x1", "r10",
                         CScript()
                             .Look({Title("Device Parameters: x1.r10"), Tabs("[Device]")})
                             .Do({Key("escape")})));
}

TEST_F(InvokeParamBrowser, ADeviceAtATopLevelWithoutANameIsAskedForAlone)
{
    TCircuitParams store;
    store.AddSubckt("", 0);
    store.AddDevice(gDevice(0, "R1", {}));
    Play(CScript().Look({Title("Device Parameters: R1")}).Do({Click("close")}), [&store] {
        EXPECT_FALSE(quorvawiz::gInvokeDeviceDetailsDialog(nullptr, store, "", "R1"));
    });
}

TEST_F(InvokeParamBrowser, ASubcircuitInThePlaceOfADeviceShowsItsDevices)
{
    EXPECT_TRUE(Details("", "x1",
                        CScript()
                            .Look({Title("Quorva Devices (x1)"),
                                   Rows({"x1.x1.M2|n2|nmos", "x1.x1.r10||"}), Shown("recalculate")})
                            .Do({Click("recalculate")})));
    mStore.AddSubckt("x1.x2", 2);
    EXPECT_FALSE(
        Details("x1", "x2",
                CScript().Look({Title("Quorva Devices (x1.x2)"), Rows({})}).Do({Click("close")})));
}

TEST_F(InvokeParamBrowser, AnythingElseShowsAllDevices)
{
    for (const auto& [pSubckt, pDevice] :
         {std::pair{"", ""}, {"x1", ""}, {"", "m1"}, {"x1", "m2"}, {"none", "m1"}}) {
        EXPECT_FALSE(Details(
            pSubckt, pDevice,
            CScript()
                .Look({Title("Quorva Devices"), Rows({"m1|n1|nmos", "x1.M2|n2|nmos", "x1.r10||"}),
                       Shown("recalculate")})
                .Do({Click("close")})));
    }
}

} // namespace
