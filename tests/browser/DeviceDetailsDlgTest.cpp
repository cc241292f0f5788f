#include "browser/BrowserTest.h"
#include "browser/ParameterBrowserDeviceDetailsDlg.h"
#include "support/TableLook.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

using namespace steps;
using namespace look;

static_assert(std::is_base_of_v<CXTPResizePropertySheet, TParameterBrowserDeviceDetailsDlg>);
static_assert(!std::is_copy_constructible_v<TParameterBrowserDeviceDetailsDlg>);
static_assert(std::is_base_of_v<CXTPResizePropertyPage, TParameterBrowserParamDetailsTab>);
static_assert(!std::is_copy_constructible_v<TParameterBrowserParamDetailsTab>);

class DeviceDetailsDlgTest : public BrowserTest
{
protected:
    /// Shows a device under the title "the title".
    int Show(const TDeviceData* pDevice, bool bAllowReevaluate, CScript script)
    {
        TParameterBrowserDeviceDetailsDlg dialog(nullptr, "the title", *pDevice, bAllowReevaluate);
        const int nResult = Play(dialog, std::move(script));
        mbReevaluate = dialog.WantsReevaluate();
        return nResult;
    }
    bool mbReevaluate = false;
};

TEST_F(DeviceDetailsDlgTest, TheModelsPageComesBeforeTheDevices)
{
    Show(mStore.GetDeviceData(0, "m1"), true,
         CScript()
             .Look({Title("Device Parameters: the title"), Tabs("[Model]|Device"),
                    Columns("Name|Value|Units|Description"), Rows({"kp|20u||", "vto|650m*||"}),
                    SelectedRow(0)})
             .Do({Select("tabs", 1)})
             .Look({Tabs("Model|[Device]"), Rows({"l|1u||", "w|2u*||"}), SelectedRow(0)})
             .Do({Select("tabs", "Model")})
             .Look({Rows({"kp|20u||", "vto|650m*||"})}));
}

TEST_F(DeviceDetailsDlgTest, ADeviceWithoutAModelHasOneTabLabelledDevice)
{
    mStore.AddDevice(gDevice(0, "m9", {0, "absent", "MOS1", "nmos"}));
    Show(mStore.GetDeviceData(0, "m9"), true,
         CScript().Look({Tabs("[Device]"), Rows({"l|1u||", "w|1u||"})}));
}

TEST_F(DeviceDetailsDlgTest, AModelWithoutParametersHasItsTabAllTheSame)
{
    mStore.AddModelClass(gClass("BARE", "b", 1, {}, {gDef("w", 1e-6)}, {}));
    mStore.AddModel(gModel(0, "bare", "BARE", "b"));
    mStore.AddDevice(gDevice(0, "b1", {0, "bare", "BARE", "b"}));
    Show(mStore.GetDeviceData(0, "b1"), true,
         CScript()
             .Look({Tabs("[Model]|Device"), Rows({}), SelectedRow(-1)})
             .Do({Select("tabs", 1)})
             .Look({Rows({"w|1u||"})}));
}

TEST_F(DeviceDetailsDlgTest, ADeviceWithANullClassHasAnEmptyDeviceTab)
{
    Show(mStore.GetDeviceData(1, "r10"), true,
         CScript().Look({Tabs("[Device]"), Columns("Name|Value|Units|Description"), Rows({}),
                         SelectedRow(-1)}));
}

TEST_F(DeviceDetailsDlgTest, NamesSortWithoutRegardToCaseAndOnlyWhatWasSetIsBlue)
{
    mStore.AddModelClass(
        gClass("D", "d", 1, {},
               {gDef("Vto", 0.7), gDef("vfb", kUninitializedParamValue), gDef("W", 1e-6)}, {}));
    TDeviceData device = gDevice(0, "d1", {0, "", "D", "d"});
    device.mDeviceParamValues["W"] = 2e-6;
    mStore.AddDevice(device);
    Show(mStore.GetDeviceData(0, "d1"), true,
         CScript().Look({Rows({"vfb|<uninitialized>||", "Vto|700m||", "W|2u*||"})}));
}

TEST_F(DeviceDetailsDlgTest, TheStandardButtonsHaveOtherMeanings)
{
    Show(mStore.GetDeviceData(0, "m1"), true,
         CScript().Look({Shown("ok", false), Text("reevaluate", "&Reevaluate..."),
                         Text("export", "&Export..."), Text("close", "&Close"),
                         Enabled("reevaluate"), Enabled("export"), Enabled("close"),
                         Shown("reevaluate")}));
    Show(mStore.GetDeviceData(0, "m1"), false,
         CScript().Look({Shown("ok", false), Shown("reevaluate", false), Enabled("export"),
                         Enabled("close")}));
}

TEST_F(DeviceDetailsDlgTest, TheButtonsStayAsTheyAreOnEachPage)
{
    Show(mStore.GetDeviceData(0, "m1"), true,
         CScript()
             .Do({Select("tabs", 1)})
             .Look({Shown("ok", false), Text("close", "&Close"), Enabled("reevaluate"),
                    Enabled("export"), Enabled("close")}));
}

TEST_F(DeviceDetailsDlgTest, SheetAndPagesAreMarkedAsHavingHelp)
{
    TParameterBrowserDeviceDetailsDlg dialog(nullptr, "", *mStore.GetDeviceData(0, "m1"), true);
    EXPECT_TRUE(dialog.HasHelp());
    Play(dialog,
         CScript().Then([&dialog](CDialog&) { EXPECT_TRUE(dialog.GetActivePage()->HasHelp()); }));
}

TEST_F(DeviceDetailsDlgTest, ReevaluateEndsItWithCode1AndIsItsResult)
{
    EXPECT_EQ(Show(mStore.GetDeviceData(0, "m1"), true, CScript().Do({Click("reevaluate")})), 1);
    EXPECT_TRUE(mbReevaluate);
}

TEST_F(DeviceDetailsDlgTest, CloseEndsItWithCode1)
{
    for (const TStep& rStep : {Click("close"), Key("enter"), Key("alt+c")}) {
        EXPECT_EQ(Show(mStore.GetDeviceData(0, "m1"), true, CScript().Do({rStep})), 1);
        EXPECT_FALSE(mbReevaluate);
    }
}

TEST_F(DeviceDetailsDlgTest, EscapeAndTheTitleBarDontReevaluate)
{
    for (const bool bAllowed : {true, false}) {
        Show(mStore.GetDeviceData(0, "m1"), bAllowed, CScript().Do({Key("escape")}));
        EXPECT_FALSE(mbReevaluate);
        Show(mStore.GetDeviceData(0, "m1"), bAllowed, CScript().Then([](CDialog& rDialog) {
            rDialog.SendMessage(WM_SYSCOMMAND, SC_CLOSE);
        }));
        EXPECT_FALSE(mbReevaluate);
    }
}

TEST_F(DeviceDetailsDlgTest, ExportsThePageOnDisplayWhichOwnsTheFileDialog)
{
    ChooseFile("model.csv");
    ChooseFile("device.csv");
    CPropertyPage* pOwner = nullptr;
    Show(mStore.GetDeviceData(0, "m1"), true,
         CScript().Do({Click("export"), Select("tabs", 1), Click("export")}).Then([&](CDialog& r) {
             pOwner = dynamic_cast<CPropertySheet&>(r).GetActivePage();
         }));
    EXPECT_EQ(mFolder.Read("model.csv"), "kp,20u, , \r\nvto,650m, , \r\n");
    EXPECT_EQ(mFolder.Read("device.csv"), "l,1u, , \r\nw,2u, , \r\n");
    const auto shown = mDesktop.TakeFileDialogs();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[1].pParent, pOwner);
    EXPECT_NE(shown[0].pParent, pOwner);
}

TEST_F(DeviceDetailsDlgTest, TheTableGrowsWithTheSheet)
{
    Show(mStore.GetDeviceData(0, "m1"), true,
         CScript()
             .Look({Place("tabs", {5, 5, 330, 191}), Place("table", {4, 4, 316, 165}),
                    Place("close", {275, 201, 60, 14}), ColumnsFill({15, 15, 15, 15}),
                    Resize({440, 320}), Place("tabs", {5, 5, 430, 291}),
                    Place("table", {4, 4, 416, 265}), Place("export", {310, 301, 60, 14}),
                    Place("close", {375, 301, 60, 14}), ColumnsFill({15, 15, 15, 15})})
             .Do({Select("tabs", 1)})
             .Look({Place("table", {4, 4, 416, 265}), ColumnsFill({15, 15, 15, 15})}));
}

} // namespace
