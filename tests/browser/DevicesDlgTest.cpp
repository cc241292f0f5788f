#include "browser/BrowserTest.h"
#include "browser/ParameterBrowserDevicesDlg.h"
#include "platform/ui/TableCtrl.h"
#include "support/TableLook.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

using namespace steps;
using namespace look;

using DevicesDlgTest = BrowserTest;

static_assert(std::is_base_of_v<CXTPResizeDialog, TParameterBrowserDevicesDlg>);
static_assert(!std::is_copy_constructible_v<TParameterBrowserDevicesDlg>);

TEST_F(DevicesDlgTest, ShowsAllDevicesInTheStoresOrder)
{
    TParameterBrowserDevicesDlg dialog(nullptr, mStore, "", true);
    const int nResult = Play(dialog, CScript()
                                         .Look({Title("Quorva Devices"), Columns("Name|Model|Type"),
                                                Rows({"m1|n1|nmos", "x1.M2|n2|nmos", "x1.r10||"}),
                                                SelectedRow(0), Focused("table")})
                                         .Do({Click("close")}));
    EXPECT_EQ(nResult, IDCANCEL);
    EXPECT_FALSE(dialog.WantsRecalculate());
}

TEST_F(DevicesDlgTest, TheFilteredViewOfX1ShowsItsNameTwice)
{
    TParameterBrowserDevicesDlg dialog(nullptr, mStore, "x1", true);
    Play(dialog,
         CScript().Look({Title("Quorva Devices (x1)"), Rows({"x1.x1.M2|n2|nmos", "x1.x1.r10||"})}));
}

TEST_F(DevicesDlgTest, AFilterEqualToNoSubcircuitShowsAllDevicesUnderThePlainTitle)
{
    for (const char* const pFilter : {"X1", "m1", "none"}) {
        TParameterBrowserDevicesDlg dialog(nullptr, mStore, pFilter, true);
        Play(dialog, CScript().Look({Title("Quorva Devices"),
                                     Rows({"m1|n1|nmos", "x1.M2|n2|nmos", "x1.r10||"})}));
    }
}

TEST_F(DevicesDlgTest, OfAnEmptyStoreThereAreThreeColumnsAndDetailsDoesNothing)
{
    const TCircuitParams empty;
    TParameterBrowserDevicesDlg dialog(nullptr, empty, "", true);
    Play(dialog, CScript()
                     .Look({Columns("Name|Model|Type"), Rows({}), SelectedRow(-1),
                            ColumnsFill({15, 15, 15})})
                     .Do({Click("details")})
                     .Look({Title("Quorva Devices")})
                     .Refused(DoubleClick("table"), EStepEnd::Refused, EUserResult::Invalid));
}

struct TButtonsCase {
    bool mbAllowRecalculate;
    bool mbRecalculateShown;
};

TEST_F(DevicesDlgTest, RecalculateIsThereIfItIsAllowedAndQuorvaModelsNever)
{
    for (const TButtonsCase& row : {TButtonsCase{true, true}, TButtonsCase{false, false}}) {
        TParameterBrowserDevicesDlg dialog(nullptr, mStore, "", row.mbAllowRecalculate);
        Play(dialog, CScript().Look({Text("details", "&Details..."), Text("export", "&Export..."),
                                     Text("quorva-models", "&Quorva Models..."),
                                     Text("recalculate", "&Recalculate"), Text("close", "&Close"),
                                     Shown("quorva-models", false),
                                     Shown("recalculate", row.mbRecalculateShown), Shown("details"),
                                     Shown("export"), Shown("close")}));
    }
}

TEST_F(DevicesDlgTest, RecalculateEndsItWithTheCancelCodeAndIsItsResult)
{
    TParameterBrowserDevicesDlg dialog(nullptr, mStore, "", true);
    EXPECT_EQ(Play(dialog, CScript().Do({Click("recalculate")})), IDCANCEL);
    EXPECT_TRUE(dialog.WantsRecalculate());
}

TEST_F(DevicesDlgTest, EscapeIsClose)
{
    TParameterBrowserDevicesDlg dialog(nullptr, mStore, "", true);
    EXPECT_EQ(Play(dialog, CScript().Do({Key("escape")})), IDCANCEL);
    EXPECT_FALSE(dialog.WantsRecalculate());
}

TEST_F(DevicesDlgTest, DetailsOfTheSelectedDeviceWithoutReevaluate)
{
    TParameterBrowserDevicesDlg dialog(nullptr, mStore, "", true);
    Play(dialog, CScript()
                     .Do({Click("details")})
                     .Look({Title("Device Parameters: m1 (n1)"), Shown("reevaluate", false)})
                     .Do({Click("close"), Select("table", 1), Click("details")})
                     .Look({Title("Device Parameters: x1.M2 (n2)")})
                     .Do({Click("close"), Select("table", 2), Click("details")})
                     .Look({Title("Device Parameters: x1.r10")})
                     .Do({Click("close")})
                     .Look({Title("Quorva Devices"), SelectedRow(2)}));
}

TEST_F(DevicesDlgTest, TheFilterTakesNoPartInTheTitleOfTheDetails)
{
    TParameterBrowserDevicesDlg dialog(nullptr, mStore, "x1", true);
    Play(dialog, CScript().Do({Click("details")}).Look({Title("Device Parameters: x1.M2 (n2)")}));
}

TEST_F(DevicesDlgTest, ADoubleClickAndEnterOpenTheDetailsOfTheSelectedRow)
{
    for (const TStep& rStep : {DoubleClick("table"), Key("enter"), Key("alt+d")}) {
        TParameterBrowserDevicesDlg dialog(nullptr, mStore, "", true);
        Play(dialog, CScript()
                         .Do({Select("table", 1), rStep})
                         .Look({Title("Device Parameters: x1.M2 (n2)")}));
    }
}

TEST_F(DevicesDlgTest, WithoutASelectionDetailsDoesNothing)
{
    TParameterBrowserDevicesDlg dialog(nullptr, mStore, "", true);
    Play(dialog, CScript()
                     .Do({Select("table", -1), Click("details")})
                     .Look({Title("Quorva Devices")})
                     .Refused(DoubleClick("table"), EStepEnd::Refused, EUserResult::Invalid));
}

TEST_F(DevicesDlgTest, ADeviceThatIsntFoundHasNoDetails)
{
    mStore.mCircuitDeviceDatasets[0]["key"] = gDevice(0, "name", {}); // as a damaged file has it
    TParameterBrowserDevicesDlg dialog(nullptr, mStore, "", true);
    Play(dialog, CScript()
                     .Look({Rows({"m1|n1|nmos", "name||", "x1.M2|n2|nmos", "x1.r10||"})})
                     .Do({Select("table", 1), Click("details")})
                     .Look({Title("Quorva Devices")}));
}

TEST_F(DevicesDlgTest, TheExportIsTheRowsAsCsv)
{
    ChooseFile("devices.csv");
    TParameterBrowserDevicesDlg dialog(nullptr, mStore, "x1", true);
    Play(dialog, CScript().Do({Click("export"), Click("close")}));
    EXPECT_EQ(mFolder.Read("devices.csv"), "x1.x1.M2,n2,nmos\r\nx1.x1.r10, , \r\n");
    const auto shown = mDesktop.TakeFileDialogs();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].pParent, &dialog);
}

TEST_F(DevicesDlgTest, TheTableGrowsAndTheButtonsStayAtTheirCorners)
{
    TParameterBrowserDevicesDlg dialog(nullptr, mStore, "", true);
    Play(dialog,
         CScript()
             .Then([](CDialog& rDialog) {
                 EXPECT_EQ(rDialog.GetClientRect(), (TRect{0, 0, 317, 184}));
             })
             .Look({Place("table", {5, 5, 307, 155}), Place("details", {5, 165, 50, 14}),
                    Place("export", {60, 165, 50, 14}), Place("recalculate", {202, 165, 55, 14}),
                    Place("close", {262, 165, 50, 14}), ColumnsFill({15, 15, 15}),
                    Resize({417, 284}), Place("table", {5, 5, 407, 255}),
                    Place("details", {5, 265, 50, 14}), Place("export", {60, 265, 50, 14}),
                    Place("recalculate", {302, 265, 55, 14}), Place("close", {362, 265, 50, 14}),
                    ColumnsFill({15, 15, 15})}));
}

TEST_F(DevicesDlgTest, MinimisingLeavesTheColumnsAsTheyAre)
{
    TParameterBrowserDevicesDlg dialog(nullptr, mStore, "", true);
    Play(dialog, CScript().Then([](CDialog& rDialog) {
        CListCtrl& rTable = gTableOf(rDialog);
        rTable.SetColumnWidth(0, 7);
        EXPECT_EQ(rDialog.UserSize(SIZE_MINIMIZED, {0, 0}), EUserResult::Done);
        EXPECT_EQ(rTable.GetColumns()[0].nWidth, 7);
        EXPECT_EQ(rDialog.UserSize(SIZE_RESTORED, {317, 184}), EUserResult::Done);
        EXPECT_NE(rTable.GetColumns()[0].nWidth, 7);
    }));
}

} // namespace
