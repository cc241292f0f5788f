#include "browser/BrowserTest.h"
#include "browser/ParameterBrowserModelClassDetailsDlg.h"
#include "browser/ParameterBrowserQuorvaModelsDlg.h"
#include "platform/base/CodePageScope.h"
#include "support/TableLook.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

using namespace steps;
using namespace look;

static_assert(std::is_base_of_v<CXTPResizeDialog, TParameterBrowserQuorvaModelsDlg>);
static_assert(!std::is_copy_constructible_v<TParameterBrowserQuorvaModelsDlg>);
static_assert(std::is_base_of_v<CXTPResizePropertySheet, TParameterBrowserModelClassDetailsDlg>);
static_assert(!std::is_copy_constructible_v<TParameterBrowserModelClassDetailsDlg>);

class QuorvaModelsDlgTest : public BrowserTest
{
protected:
    QuorvaModelsDlgTest()
    {
        mStore.AddModelClass({{"bjt", "npn", 10, 1e6, "transistor, bipolar"}, {}, {}, {}});
        mStore.AddOpticalClass({{"laser", "opt", 2, 2.5, ""}, {gDef("p", 1)}, {}, {}});
    }
    /// Shows the list with a class to select.
    int Show(const CStringU& rsClass, CScript script)
    {
        TParameterBrowserQuorvaModelsDlg dialog(nullptr, mStore, rsClass);
        return Play(dialog, std::move(script));
    }
};

using ClassDetailsDlgTest = QuorvaModelsDlgTest;

TEST_F(QuorvaModelsDlgTest, ShowsAllClassesSorted)
{
    const int nResult =
        Show("", CScript()
                     .Look({Title("Quorva Models"), Columns("Name|Type|Level|Version|Description"),
                            Rows({"bjt|npn|10|1e+06|transistor, bipolar", "laser|opt|2|2.5|",
                                  "MOS1|nmos|1|1.5|a nmos"}),
                            Focused("table")})
                     .Do({Click("close")}));
    EXPECT_EQ(nResult, IDCANCEL);
}

struct TSelectCase {
    const char* mpClass;
    int mnRow;
};

TEST_F(QuorvaModelsDlgTest, SelectsTheClassOfTheExactNameElseRow0)
{
    for (const TSelectCase& row :
         {TSelectCase{"MOS1", 2}, TSelectCase{"laser", 1}, TSelectCase{"bjt", 0},
          TSelectCase{"", 0}, TSelectCase{"mos1", 0}, TSelectCase{"none", 0}}) {
        SCOPED_TRACE(row.mpClass);
        Show(row.mpClass, CScript().Look({SelectedRow(row.mnRow)}));
    }
}

TEST_F(QuorvaModelsDlgTest, OfSeveralRowsOfTheNameTheLastIsSelected)
{
    mStore.AddOpticalClass({{"MOS1", "zopt", 1, 1, ""}, {}, {}, {}});
    Show("MOS1", CScript().Look({SelectedRow(3)}));
}

TEST_F(QuorvaModelsDlgTest, OfAnEmptyStoreNothingIsSelectedAndDetailsDoesNothing)
{
    const TCircuitParams empty;
    TParameterBrowserQuorvaModelsDlg dialog(nullptr, empty, "MOS1");
    Play(dialog,
         CScript()
             .Look({Columns("Name|Type|Level|Version|Description"), Rows({}), SelectedRow(-1)})
             .Do({Click("details")})
             .Look({Title("Quorva Models")}));
}

TEST_F(QuorvaModelsDlgTest, DetailsOfTheSelectedClass)
{
    for (const TStep& rStep : {Click("details"), DoubleClick("table"), Key("enter")}) {
        Show("MOS1", CScript()
                         .Do({rStep})
                         .Look({Title("Model: MOS1 [Default values]")})
                         .Do({Click("close"), Select("table", 1), rStep})
                         .Look({Title("Model: laser [Default values]"), Rows({"p|1||"})})
                         .Do({Click("close"), Select("table", -1), Click("details")})
                         .Look({Title("Quorva Models")})
                         .Do({Click("close")}));
    }
}

TEST_F(QuorvaModelsDlgTest, ANameThatTheCodePageLacksIsStillFound)
{
    mStore.AddModelClass(gClass(u"\u03A9", "t", 1, {gDef("p", 1)}, {}, {}));
    const CCodePageScope codePage(1252);
    Show(u"\u03A9", CScript().Do({Click("details")}).Look({Rows({"p|1||"})}));
}

TEST_F(QuorvaModelsDlgTest, TheExportIsTheRowsAsCsv)
{
    ChooseFile("classes.csv");
    TParameterBrowserQuorvaModelsDlg dialog(nullptr, mStore, "");
    Play(dialog, CScript().Do({Click("export")}));
    EXPECT_EQ(mFolder.Read("classes.csv"), "bjt,npn,10,1e+06,\"transistor, bipolar\"\r\n"
                                           "laser,opt,2,2.5, \r\nMOS1,nmos,1,1.5,a nmos\r\n");
    EXPECT_EQ(mDesktop.TakeFileDialogs().at(0).pParent, &dialog);
}

TEST_F(QuorvaModelsDlgTest, TheTableGrowsAndTheButtonsStayAtTheirCorners)
{
    Show("", CScript().Look({Place("table", {5, 5, 385, 205}), Place("close", {340, 215, 50, 14}),
                             ColumnsFill({15, 15, 15, 15, 19}), Resize({495, 334}),
                             Place("table", {5, 5, 485, 305}), Place("details", {5, 315, 50, 14}),
                             Place("export", {60, 315, 50, 14}), Place("close", {440, 315, 50, 14}),
                             ColumnsFill({15, 15, 15, 15, 19})}));
}

TEST_F(ClassDetailsDlgTest, AlwaysHasThreePagesInThisOrder)
{
    TParameterBrowserModelClassDetailsDlg dialog(nullptr, "MOS1",
                                                 gMakeClassParamRows(mStore, "MOS1"));
    EXPECT_TRUE(dialog.HasHelp());
    Play(dialog, CScript()
                     .Look({Title("Model: MOS1 [Default values]"), Tabs("[Model]|Device|State"),
                            Rows({"kp|20u||", "vto|700m||"})})
                     .Do({Select("tabs", 1)})
                     .Look({Tabs("Model|[Device]|State"), Rows({"l|1u||", "w|1u||"})})
                     .Do({Select("tabs", 2)})
                     .Look({Tabs("Model|Device|[State]"),
                            Rows({"on|false||", "vgs|<uninitialized>||"}), Enabled("close")}));
}

TEST_F(ClassDetailsDlgTest, AClassWithoutStateParametersHasAnEmptyStateTab)
{
    TParameterBrowserModelClassDetailsDlg dialog(nullptr, "laser",
                                                 gMakeClassParamRows(mStore, "laser"));
    Play(dialog, CScript()
                     .Do({Select("tabs", "State")})
                     .Look({Tabs("Model|Device|[State]"), Columns("Name|Value|Units|Description"),
                            Rows({})}));
}

TEST_F(ClassDetailsDlgTest, ADefinitionsOwnMarkMakesItsValueBlue)
{
    mStore.mModelClasses["MOS1"].mModelParamDefs[0].mIsSet = true;
    TParameterBrowserModelClassDetailsDlg dialog(nullptr, "MOS1",
                                                 gMakeClassParamRows(mStore, "MOS1"));
    Play(dialog, CScript().Look({Rows({"kp|20u||", "vto|700m*||"})}));
}

TEST_F(ClassDetailsDlgTest, OfTheStandardButtonsExportAndCloseAreThere)
{
    TParameterBrowserModelClassDetailsDlg dialog(nullptr, "MOS1", {});
    const int nResult = Play(dialog, CScript()
                                         .Look({Shown("ok", false), Shown("reevaluate", false),
                                                Text("export", "&Export..."), Enabled("export"),
                                                Text("close", "&Close"), Enabled("close")})
                                         .Do({Click("close")}));
    EXPECT_EQ(nResult, 1);
}

TEST_F(ClassDetailsDlgTest, ExportsThePageOnDisplay)
{
    ChooseFile("state.csv");
    TParameterBrowserModelClassDetailsDlg dialog(nullptr, "MOS1",
                                                 gMakeClassParamRows(mStore, "MOS1"));
    Play(dialog, CScript().Do({Select("tabs", 2), Click("export")}));
    EXPECT_EQ(mFolder.Read("state.csv"), "on,false, , \r\nvgs,<uninitialized>, , \r\n");
}

} // namespace
