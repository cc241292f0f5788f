#include "browser/BrowserTest.h"
#include "browser/ParameterBrowserCircuitModelDatasetsDlg.h"
#include "browser/ParameterBrowserLibraryModelDetailsDlg.h"
#include "support/TableLook.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

using namespace steps;
using namespace look;

using LibraryModelsDlgTest = BrowserTest;
using ModelDetailsDlgTest = BrowserTest;

static_assert(std::is_base_of_v<CXTPResizeDialog, TParameterBrowserCircuitModelDatasetsDlg>);
static_assert(!std::is_copy_constructible_v<TParameterBrowserCircuitModelDatasetsDlg>);
static_assert(std::is_base_of_v<CXTPResizeDialog, TParameterBrowserLibraryModelDetailsDlg>);
static_assert(!std::is_copy_constructible_v<TParameterBrowserLibraryModelDetailsDlg>);

TEST_F(LibraryModelsDlgTest, ShowsAllModelsInTheStoresOrder)
{
    TParameterBrowserCircuitModelDatasetsDlg dialog(nullptr, mStore, true);
    const int nResult =
        Play(dialog, CScript()
                         .Look({Title("Library Models"), Columns("Name|Type|Level|Quorva Name"),
                                Rows({"n1|nmos|1|MOS1", "x1.n2|nmos|1|MOS1"}), SelectedRow(0),
                                Focused("table")})
                         .Do({Click("close")}));
    EXPECT_EQ(nResult, IDCANCEL);
    EXPECT_FALSE(dialog.WantsRecalculate());
}

TEST_F(LibraryModelsDlgTest, WithoutModelsThereAreFourColumnsAndNoRows)
{
    const TCircuitParams empty;
    TParameterBrowserCircuitModelDatasetsDlg dialog(nullptr, empty, true);
    Play(dialog, CScript()
                     .Look({Columns("Name|Type|Level|Quorva Name"), Rows({}), SelectedRow(-1)})
                     .Do({Click("details"), Click("quorva-models")})
                     .Look({Title("Library Models")}));
}

TEST_F(LibraryModelsDlgTest, RecalculateIsThereIfItIsAllowedAndQuorvaModelsAlways)
{
    for (const bool bAllowed : {true, false}) {
        TParameterBrowserCircuitModelDatasetsDlg dialog(nullptr, mStore, bAllowed);
        Play(dialog, CScript().Look({Text("quorva-models", "&Quorva Models..."),
                                     Shown("quorva-models"), Shown("recalculate", bAllowed),
                                     Shown("details"), Shown("export"), Shown("close")}));
    }
}

TEST_F(LibraryModelsDlgTest, RecalculateEndsItWithTheCancelCodeAndIsItsResult)
{
    TParameterBrowserCircuitModelDatasetsDlg dialog(nullptr, mStore, true);
    EXPECT_EQ(Play(dialog, CScript().Do({Click("recalculate")})), IDCANCEL);
    EXPECT_TRUE(dialog.WantsRecalculate());
}

TEST_F(LibraryModelsDlgTest, DetailsOfTheSelectedModel)
{
    for (const TStep& rStep : {Click("details"), DoubleClick("table"), Key("enter")}) {
        TParameterBrowserCircuitModelDatasetsDlg dialog(nullptr, mStore, true);
        Play(dialog, CScript()
                         .Do({rStep})
                         .Look({Title("Library Model Details [n1]")})
                         .Do({Click("close"), Select("table", 1), rStep})
                         .Look({Title("Library Model Details [x1.n2]")})
                         .Do({Click("close"), Click("close")}));
    }
}

TEST_F(LibraryModelsDlgTest, WithoutASelectionNothingOpens)
{
    TParameterBrowserCircuitModelDatasetsDlg dialog(nullptr, mStore, true);
    Play(dialog, CScript()
                     .Do({Select("table", -1), Click("details"), Click("quorva-models")})
                     .Look({Title("Library Models")}));
}

TEST_F(LibraryModelsDlgTest, AModelThatIsntFoundHasNoDetails)
{
    mStore.mCircuitModelDatasets[0]["key"] = gModel(0, "name", "MOS1", "nmos");
    TParameterBrowserCircuitModelDatasetsDlg dialog(nullptr, mStore, true);
    Play(dialog, CScript()
                     .Look({Rows({"n1|nmos|1|MOS1", "name|nmos|1|MOS1", "x1.n2|nmos|1|MOS1"})})
                     .Do({Select("table", 1), Click("details")})
                     .Look({Title("Library Models")}));
}

TEST_F(LibraryModelsDlgTest, QuorvaModelsSelectsTheClassOfTheModel)
{
    mStore.AddModelClass(gClass("ABC", "npn", 1, {}, {}, {}));
    mStore.AddModelClass(gClass("ZZZ", "npn", 1, {}, {}, {}));
    mStore.AddModel(gModel(1, "q10", "ZZZ", "npn"));
    TParameterBrowserCircuitModelDatasetsDlg dialog(nullptr, mStore, true);
    Play(dialog, CScript()
                     .Do({Click("quorva-models")})
                     .Look({Title("Quorva Models"), SelectedRow(1)})
                     .Do({Click("close"), Select("table", 2), Click("quorva-models")})
                     .Look({Title("Quorva Models"), SelectedRow(2)})
                     .Do({Click("close")})
                     .Look({Title("Library Models"), SelectedRow(2)}));
}

TEST_F(LibraryModelsDlgTest, AModelWhoseClassIsAbsentIsNotListed)
{
    mStore.AddModel(gModel(0, "a", "absent", "nmos"));
    TParameterBrowserCircuitModelDatasetsDlg dialog(nullptr, mStore, true);
    Play(dialog, CScript().Look({Rows({"n1|nmos|1|MOS1", "x1.n2|nmos|1|MOS1"})}));
}

TEST_F(LibraryModelsDlgTest, AModelThatLosesItsClassBehindTheListShowsAnEmptyTable)
{
    TParameterBrowserCircuitModelDatasetsDlg dialog(nullptr, mStore, true);
    mStore.mModelClasses.clear(); // only a damaged file leaves a link that no name confirms
    mStore.mCircuitModelDatasets.at(0).at("n1").mpModelClassDef = nullptr;
    Play(dialog, CScript()
                     .Do({Click("details")})
                     .Look({Title("Library Model Details [n1]"), Rows({})})
                     .Do({Click("close"), Click("quorva-models")})
                     .Look({Title("Quorva Models"), Rows({})}));
}

TEST_F(LibraryModelsDlgTest, TheExportIsTheRowsAsCsv)
{
    ChooseFile("models.csv");
    TParameterBrowserCircuitModelDatasetsDlg dialog(nullptr, mStore, true);
    Play(dialog, CScript().Do({Click("export")}));
    EXPECT_EQ(mFolder.Read("models.csv"), "n1,nmos,1,MOS1\r\nx1.n2,nmos,1,MOS1\r\n");
    EXPECT_EQ(mDesktop.TakeFileDialogs().at(0).pParent, &dialog);
}

TEST_F(LibraryModelsDlgTest, TheTableGrowsAndTheButtonsStayAtTheirCorners)
{
    TParameterBrowserCircuitModelDatasetsDlg dialog(nullptr, mStore, true);
    Play(dialog,
         CScript().Look(
             {Place("table", {5, 5, 307, 155}), Place("quorva-models", {115, 165, 75, 14}),
              Resize({417, 284}), Place("table", {5, 5, 407, 255}),
              Place("details", {5, 265, 50, 14}), Place("export", {60, 265, 50, 14}),
              Place("quorva-models", {115, 265, 75, 14}), Place("recalculate", {302, 265, 55, 14}),
              Place("close", {362, 265, 50, 14}), ColumnsFill({15, 15, 15, 15})}));
}

TEST_F(ModelDetailsDlgTest, ShowsDefaultsAndInBlueWhatWasGiven)
{
    TParameterBrowserLibraryModelDetailsDlg dialog(nullptr, *mStore.GetModelData(0, "n1"), "a.b");
    const int nResult =
        Play(dialog,
             CScript()
                 .Look({Title("Library Model Details [a.b]"),
                        Columns("Name|Value|Units|Description"), Rows({"kp|20u||", "vto|650m*||"}),
                        SelectedRow(0), Text("export", "&Export..."), Text("close", "&Close")})
                 .Do({Click("close")}));
    EXPECT_EQ(nResult, IDCANCEL);
}

TEST_F(ModelDetailsDlgTest, EnterAndEscapeCloseIt)
{
    for (const char* const pKey : {"enter", "escape", "alt+c"}) {
        TParameterBrowserLibraryModelDetailsDlg dialog(nullptr, *mStore.GetModelData(0, "n1"), "");
        EXPECT_EQ(Play(dialog, CScript().Do({Key(pKey)})), IDCANCEL) << pKey;
    }
}

TEST_F(ModelDetailsDlgTest, TheExportIsTheRowsAsCsv)
{
    ChooseFile("model.csv");
    TParameterBrowserLibraryModelDetailsDlg dialog(nullptr, *mStore.GetModelData(0, "n1"), "n1");
    Play(dialog, CScript().Do({Click("export")}));
    EXPECT_EQ(mFolder.Read("model.csv"), "kp,20u, , \r\nvto,650m, , \r\n");
    EXPECT_EQ(mDesktop.TakeFileDialogs().at(0).pParent, &dialog);
}

TEST_F(ModelDetailsDlgTest, TheTableGrowsAndBothButtonsStayAtTheRight)
{
    TParameterBrowserLibraryModelDetailsDlg dialog(nullptr, *mStore.GetModelData(0, "n1"), "n1");
    Play(dialog,
         CScript().Look({Place("table", {5, 5, 307, 155}), Place("export", {207, 165, 50, 14}),
                         Resize({417, 284}), Place("table", {5, 5, 407, 255}),
                         Place("export", {307, 265, 50, 14}), Place("close", {362, 265, 50, 14}),
                         ColumnsFill({15, 15, 15, 15})}));
}

} // namespace
