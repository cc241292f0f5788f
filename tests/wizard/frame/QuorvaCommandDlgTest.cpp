#include "wizard/frame/QuorvaCommandDlg.h"

#include "platform/base/Exceptions.h"
#include "platform/headless/TreePath.h"
#include "platform/ui/FieldView.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "support/VirtualSlot.h"
#include "support/WizardRun.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/WizardPages.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace
{
using namespace steps;

constexpr DialogTemplate kEmptyTemplate{"Test pane", kPageSize, {}};

/// A pane that stands for the page of row N of the tree, where that isn't built.
template <std::size_t N> class CTestPane : public CCommandPage
{
public:
    CTestPane() : CCommandPage(kEmptyTemplate) {}
    bool BuildCommand(CString&) override { return false; }
};

constexpr std::size_t kNodes = 55;

template <std::size_t... N>
std::array<const CRuntimeClass*, kNodes> TestPaneClasses(std::index_sequence<N...>)
{
    return {&gRuntimeClass<CTestPane<N>>()...};
}

/// The wizard's tree with a test pane for each page that isn't built; `bAll`: for every page but
/// the categories'.
std::vector<TTreeRow> WholeTree(bool bAll)
{
    static const auto kClasses = TestPaneClasses(std::make_index_sequence<kNodes>());
    const auto real = gWizardTree();
    std::vector<TTreeRow> tree(real.begin(), real.end());
    for (std::size_t n = 0; n < tree.size() && n < kNodes; ++n)
        if (!tree[n].bCategory && (bAll || !tree[n].pClass))
            tree[n].pClass = kClasses[n];
    return tree;
}

struct TNode {
    const char* pLabel;
    const char* pClass;
};

struct TCategory {
    TNode node;
    std::vector<TNode> pages;
    std::vector<const char*> buttons;
};

// The table of the wizard, told a second time.
const TCategory kWizard[] = {
    {{"Analysis", "CAnalysisPage"},
     {{"AC", "CAnalysisAC1Page"},
      {"DC operating point", "CAnalysisDCOpPage"},
      {"DC transfer sweep", "CAnalysisDCTransferSweepPage"},
      {"Fourier", "CAnalysisFourierPage"},
      {"Noise", "CAnalysisNoisePage"},
      {"Stability", "CAnalysisStabilityPage"},
      {"Transient", "CAnalysisTransientPage"},
      {"Transfer function", "CAnalysisTransferFunctionPage"},
      {"Parametric sweep", "CAnalysisParametricSweepPage"}},
     {"AC", "DC operating point", "DC transfer sweep", "Fourier", "Noise", "Stability", "Transient",
      "Transfer function", "Parametric sweep"}},
    {{"Current source", "CCurrentSourcePage"},
     {{"Bit", "CCurrentSourceBitPage"},
      {"Bus", "CCurrentSourceBusPage"},
      {"Constant", "CCurrentSourceConstantPage"},
      {"Current-controlled", "CCurrentSourceCurrentControlledPage"},
      {"Exponential", "CCurrentSourceExponentialPage"},
      {"FM", "CCurrentSourceFMPage"},
      {"Piecewise linear", "CCurrentSourcePiecewiseLinearPage"},
      {"Pulse", "CCurrentSourcePulsePage"},
      {"Sinusoidal", "CCurrentSourceSinusoidalPage"},
      {"Voltage-controlled", "CCurrentSourceVoltageControlledPage"}},
     {"Bit", "Bus", "Constant", "Current-controlled", "Exponential", "FM", "Piecewise linear",
      "Pulse", "Sinusoidal", "Voltage-controlled"}},
    {{"Files", "CFilesPage"},
     {{"Include file", "CFilesIncludePage"},
      {"Library file", "CFilesLibraryPage"},
      {"Delete library file", "CFilesDeleteLibraryPage"}},
     {"Include", "Library", "Table", "Delete library file"}},
    {{"Initialization", "CInitializationPage"},
     {{"DC guess", "CInitializationDCGuessPage"},
      {"Initial condition", "CInitializationInitialConditionPage"}},
     {"DC guess", "Initial condition"}},
    {{"Output", "COutputPage"},
     {{"AC results", "COutputACResultsPage"},
      {"AC small-signal model", "COutputACSmallSignalModelPage"},
      {"DC results", "COutputDCResultsPage"},
      {"Power", "COutputPowerPage"},
      {"Transient results", "COutputTransientResultsPage"},
      {"Noise results", "COutputNoiseResultsPage"},
      {"Measure", "COutputMeasurePage"}},
     {"AC results", "AC small-signal model", "DC results", "Power", "Transient results",
      "Noise results", "Measure"}},
    {{"Settings", "CSettingsPage"},
     {{"Bus definition", "CSettingsBusDefinitionPage"},
      {"Global nodes", "CSettingsGlobalNodesPage"},
      {"Parameters", "CSettingsParametersPage"},
      {"Simulation options", "CSettingsSimulationOptionsPage"},
      {"Temperature", "CSettingsTemperaturePage"}},
     {"Bus definition", "Global nodes", "Parameters", "Simulation options", "Temperature",
      "Partition"}},
    {{"Voltage source", "CVoltageSourcePage"},
     {{"Bit", "CVoltageSourceBitPage"},
      {"Bus", "CVoltageSourceBusPage"},
      {"Constant", "CVoltageSourceConstantPage"},
      {"Current-controlled", "CVoltageSourceCurrentControlledPage"},
      {"Exponential", "CVoltageSourceExponentialPage"},
      {"FM", "CVoltageSourceFMPage"},
      {"Piecewise linear", "CVoltageSourcePiecewiseLinearPage"},
      {"Pulse", "CVoltageSourcePulsePage"},
      {"Sinusoidal", "CVoltageSourceSinusoidalPage"},
      {"Voltage-controlled", "CVoltageSourceVoltageControlledPage"}},
     {"Bit", "Bus", "Constant", "Current-controlled", "Exponential", "FM", "Piecewise-linear",
      "Pulse", "Sinusoidal", "Voltage-controlled"}},
    {{"Optimization", "COptimizationPage"}, {{"Wizard", "COptimizationWizardPage"}}, {"Wizard"}},
};

/// The pages in the order in which the dialog constructs them; categories follow in tree order.
const char* const kConstructed[] = {
    "CAnalysisAC1Page",
    "CAnalysisDCOpPage",
    "CAnalysisDCTransferSweepPage",
    "CAnalysisFourierPage",
    "CAnalysisNoisePage",
    "CAnalysisStabilityPage",
    "CAnalysisTransferFunctionPage",
    "CAnalysisTransientPage",
    "CAnalysisParametricSweepPage",
    "CCurrentSourceBitPage",
    "CCurrentSourceBusPage",
    "CCurrentSourceCurrentControlledPage",
    "CCurrentSourceConstantPage",
    "CCurrentSourceExponentialPage",
    "CCurrentSourceFMPage",
    "CCurrentSourcePiecewiseLinearPage",
    "CCurrentSourcePulsePage",
    "CCurrentSourceSinusoidalPage",
    "CCurrentSourceVoltageControlledPage",
    "CFilesIncludePage",
    "CFilesLibraryPage",
    "CFilesDeleteLibraryPage",
    "CInitializationDCGuessPage",
    "CInitializationInitialConditionPage",
    "COutputACResultsPage",
    "COutputACSmallSignalModelPage",
    "COutputDCResultsPage",
    "COutputPowerPage",
    "COutputTransientResultsPage",
    "COutputNoiseResultsPage",
    "COutputMeasurePage",
    "CSettingsBusDefinitionPage",
    "CSettingsGlobalNodesPage",
    "CSettingsParametersPage",
    "CSettingsSimulationOptionsPage",
    "CSettingsTemperaturePage",
    "CVoltageSourceBitPage",
    "CVoltageSourceBusPage",
    "CVoltageSourceCurrentControlledPage",
    "CVoltageSourceConstantPage",
    "CVoltageSourceExponentialPage",
    "CVoltageSourceFMPage",
    "CVoltageSourcePiecewiseLinearPage",
    "CVoltageSourcePulsePage",
    "CVoltageSourceSinusoidalPage",
    "CVoltageSourceVoltageControlledPage",
    "COptimizationWizardPage",
    "CAnalysisPage",
    "CCurrentSourcePage",
    "CFilesPage",
    "CInitializationPage",
    "COutputPage",
    "CSettingsPage",
    "CVoltageSourcePage",
    "COptimizationPage",
};

std::string Bracketed(const char* pLabel)
{
    return '[' + std::string(pLabel) + ']';
}

constexpr std::string_view kMarker = "__$$Translatable$$_";

TEST(WizardTree, HoldsEveryNodeWithItsClassInOrder)
{
    const auto tree = gWizardTree();
    std::size_t nRow = 0;
    for (const TCategory& rCategory : kWizard) {
        ASSERT_LT(nRow, tree.size());
        EXPECT_TRUE(tree[nRow].bCategory);
        EXPECT_EQ(tree[nRow].pLabel, std::string(kMarker) + rCategory.node.pLabel);
        EXPECT_EQ(tree[nRow].sClass, rCategory.node.pClass);
        EXPECT_NE(tree[nRow].pClass, nullptr);
        ++nRow;
        for (const TNode& rPage : rCategory.pages) {
            ASSERT_LT(nRow, tree.size());
            EXPECT_FALSE(tree[nRow].bCategory);
            EXPECT_EQ(tree[nRow].pLabel, std::string(kMarker) + rPage.pLabel);
            EXPECT_EQ(tree[nRow].sClass, rPage.pClass);
            ++nRow;
        }
    }
    EXPECT_EQ(nRow, tree.size());
}

TEST(WizardTree, ABuiltPageIsAClassThatCanBeCreatedByItsName)
{
    for (const TTreeRow& rRow : gWizardTree()) {
        if (!rRow.pClass)
            continue;
        EXPECT_EQ(CRuntimeClass::FromName(rRow.sClass), rRow.pClass) << rRow.sClass;
        const auto pPage = rRow.pClass->CreateObject();
        ASSERT_NE(pPage, nullptr) << rRow.sClass;
        EXPECT_EQ(gClassName(*pPage), rRow.sClass);
        EXPECT_TRUE(pPage->IsKindOf(gRuntimeClass<CCommandPage>())) << rRow.sClass;
    }
}

TEST(WizardDialog, PagesAreConstructedInTheirOwnOrderAndAllOfThem)
{
    const auto tree = WholeTree(true);
    const CQuorvaCommandDlg dialog(nullptr, nullptr, tree);

    const auto classOf = [&tree](const CCommandPage& rPage) {
        for (const TTreeRow& rRow : tree)
            if (rRow.pClass->GetName() == gClassName(rPage))
                return rRow.sClass;
        return std::string_view("none");
    };
    ASSERT_EQ(dialog.GetPages().size(), std::size(kConstructed));
    for (std::size_t n = 0; n < std::size(kConstructed); ++n)
        EXPECT_EQ(classOf(*dialog.GetPages()[n]), kConstructed[n]) << n;
}

std::vector<int> sEnded;

template <int N> class CEndingPane : public CCommandPage
{
public:
    CEndingPane() : CCommandPage(kEmptyTemplate) {}
    ~CEndingPane() override { sEnded.push_back(N); }
    bool BuildCommand(CString&) override { return false; }
};

TEST(WizardDialog, PagesEndWithTheDialogInTheReverseOrder)
{
    const TTreeRow tree[] = {
        {0, "C", "", &gRuntimeClass<CEndingPane<2>>(), true},
        {1, "b", "", &gRuntimeClass<CEndingPane<1>>(), false},
        {0, "a", "", &gRuntimeClass<CEndingPane<0>>(), false},
    };
    sEnded.clear();
    {
        const CQuorvaCommandDlg dialog(nullptr, nullptr, tree);
        EXPECT_TRUE(sEnded.empty());
    }
    EXPECT_EQ(sEnded, (std::vector<int>{2, 1, 0}));
}

TEST(WizardDialog, APageThatIsNotBuiltAddsNoNode)
{
    const TTreeRow tree[] = {
        {0, "C", "", &gRuntimeClass<CTestPane<0>>(), true},
        {0, "built", "", &gRuntimeClass<CTestPane<1>>(), false},
        {1, "not built", "", nullptr, false},
    };
    HeadlessDesktop desktop;
    CQuorvaCommandDlg dialog(nullptr, nullptr, tree);
    EXPECT_EQ(dialog.GetPages().size(), 2U);
    CScript()
        .Then([&dialog](CDialog&) {
            EXPECT_NE(gFindTreePath(dialog.GetTree(), "C/built"), nullptr);
            EXPECT_EQ(gFindTreePath(dialog.GetTree(), "C/not built"), nullptr);
        })
        .Run(desktop, [&dialog] { dialog.DoModal(); });
}

TEST(WizardDialog, TheRealTreeShowsTheBuiltPagesAndNoOthers)
{
    gRunWizard(CScript().Then([](CDialog&) {
        std::string sCategory;
        for (const TTreeRow& rRow : gWizardTree()) {
            const std::string sLabel(std::string_view(rRow.pLabel).substr(kMarker.size()));
            if (rRow.bCategory)
                sCategory = sLabel;
            const std::string sPath = rRow.bCategory ? sLabel : sCategory + '/' + sLabel;
            EXPECT_EQ(gFindTreePath(gOpenWizard().GetTree(), sPath) != nullptr,
                      rRow.pClass != nullptr)
                << sPath;
        }
    }));
}

TEST(WizardDialog, ARowWhoseClassIsNoConcretePageIsAnError)
{
    const TTreeRow tree[] = {{0, "C", "", &gRuntimeClass<CCommandPage>(), true}};
    EXPECT_THROW(CQuorvaCommandDlg(nullptr, nullptr, tree), CInvalidArgException);
}

/// Runs a wizard with the whole tree.
class CWholeTreeTest : public testing::Test
{
protected:
    void Run(CScript script)
    {
        script.Run(mDesktop, [this] { mDialog.DoModal(); });
    }
    std::string SelectedPath() const
    {
        return gTreePathOf(mDialog.GetTree(), mDialog.GetTree().GetSelectedItem());
    }

    HeadlessDesktop mDesktop;
    CRecordingTarget mTarget;
    std::vector<TTreeRow> mWhole = WholeTree(false);
    CQuorvaCommandDlg mDialog{nullptr, &mTarget, mWhole};
};

TEST_F(CWholeTreeTest, TheTitleAndEveryLabelAreTranslated)
{
    const CBracketTranslation translation;
    Run(CScript().Then([this](CDialog&) {
        EXPECT_EQ(mDialog.GetWindowText(), "[SPICE Command Wizard]");
        const CTreeCtrl& rTree = mDialog.GetTree();
        HTREEITEM hRoot = rTree.GetRootItem();
        for (const TCategory& rCategory : kWizard) {
            EXPECT_EQ(rTree.GetItemText(hRoot), CString("[") + rCategory.node.pLabel + "]");
            HTREEITEM hPage = rTree.GetChildItem(hRoot);
            for (const TNode& rPage : rCategory.pages) {
                EXPECT_EQ(rTree.GetItemText(hPage), CString("[") + rPage.pLabel + "]");
                hPage = rTree.GetNextSiblingItem(hPage);
            }
            EXPECT_EQ(hPage, nullptr);
            hRoot = rTree.GetNextSiblingItem(hRoot);
        }
        EXPECT_EQ(hRoot, nullptr);
    }));
}

TEST_F(CWholeTreeTest, EveryCategoryButtonSelectsThePageAtItsOwnPlaceAndItsLabelIsUntranslated)
{
    const CBracketTranslation translation;
    for (const TCategory& rCategory : kWizard) {
        for (std::size_t n = 0; n < rCategory.buttons.size(); ++n) {
            const std::string sKey = "button-" + std::to_string(n + 1);
            const std::string sCategory = Bracketed(rCategory.node.pLabel);
            const bool bLeads = n < rCategory.pages.size();
            Run(CScript()
                    .Do({Open(sCategory)})
                    .Then([&](CDialog& rDialog) {
                        EXPECT_EQ(gFindField(rDialog, sKey).pControl->GetWindowText(),
                                  rCategory.buttons[n]);
                    })
                    .Do({Click(sKey)})
                    .Then([&](CDialog&) {
                        EXPECT_EQ(SelectedPath(),
                                  bLeads ? sCategory + '/' + Bracketed(rCategory.pages[n].pLabel)
                                         : sCategory);
                        // The optimization wizard has something to insert on its last step only.
                        const bool bAtOnce =
                            bLeads && rCategory.pages[n].pClass !=
                                          std::string_view("COptimizationWizardPage");
                        EXPECT_EQ(mDialog.GetDlgItem(IDOK)->IsWindowEnabled(), bAtOnce);
                    }));
        }
    }
}

TEST_F(CWholeTreeTest, ACategoryButtonPostsOneMessageWithTwoConstantsToItsOwnPage)
{
    WPARAM nCategory = 0;
    for (const TCategory& rCategory : kWizard) {
        for (std::size_t n = 0; n < rCategory.buttons.size(); ++n) {
            Run(CScript().Do({Open(rCategory.node.pLabel)}).Then([&](CDialog& rDialog) {
                CWnd& rPage = gCurrentPane(rDialog);
                gRunStep(rDialog, Click("button-" + std::to_string(n + 1)));
                const auto& rPosted = gDesktop().Thread().mPosted;
                ASSERT_EQ(rPosted.size(), 1U);
                EXPECT_EQ(rPosted[0].pWnd, &rPage);
                EXPECT_EQ(rPosted[0].nMessage, 0x8000U + 5);
                EXPECT_EQ(rPosted[0].wParam, nCategory);
                EXPECT_EQ(rPosted[0].lParam, static_cast<LPARAM>(n));
            }));
        }
        ++nCategory;
    }
}

TEST_F(CWholeTreeTest, ACategoryHasAHeadingOnTopAndItsButtonsInTwoColumnsOfFive)
{
    for (const TCategory& rCategory : kWizard) {
        Run(CScript().Do({Open(rCategory.node.pLabel)}).Then([&](CDialog& rDialog) {
            const auto fields = gCollectFields(gCurrentPane(rDialog));
            ASSERT_EQ(fields.size(), rCategory.buttons.size() + 1) << "the heading and the buttons";
            const CWnd& rHeading = *fields[0].pControl;
            EXPECT_EQ(rHeading.GetWindowText(), rCategory.node.pLabel);
            EXPECT_TRUE(rHeading.GetControlFlags() & kHeading);
            EXPECT_EQ(rHeading.GetRect().x + rHeading.GetRect().Right(), kPageSize.cx) << "centred";

            const TRect first = fields[1].pControl->GetRect();
            EXPECT_GE(first.y, rHeading.GetRect().Bottom());
            for (std::size_t n = 1; n < fields.size(); ++n) {
                const TRect rect = fields[n].pControl->GetRect();
                const bool bRight = n > 5;
                EXPECT_EQ(rect.w, first.w);
                EXPECT_EQ(rect.h, first.h);
                EXPECT_EQ(rect.x > first.x, bRight);
                EXPECT_EQ(rect.y, fields[bRight ? n - 5 : n].pControl->GetRect().y);
                if (n > 1 && n != 6) {
                    EXPECT_GT(rect.y, fields[n - 1].pControl->GetRect().y);
                }
            }
        }));
    }
}

// The three irregularities of the buttons, each by its name.

TEST_F(CWholeTreeTest, TheTableButtonOfTheFilesCategoryLeadsToDeleteLibraryFile)
{
    Run(CScript().Do({Open("Files"), Click("button-3")}).Then([this](CDialog&) {
        EXPECT_EQ(SelectedPath(), "Files/Delete library file");
    }));
}

TEST_F(CWholeTreeTest, TheDeleteLibraryFileButtonSelectsNothingAndFocusesTheCategoryPage)
{
    Run(CScript()
            .Do({Open("Files")})
            .Then([](CDialog& rDialog) {
                gRunStep(rDialog, Click("button-4"));
                gRunStep(rDialog, Focus("tree")); // before the message is delivered
            })
            .Then([this](CDialog& rDialog) {
                EXPECT_EQ(SelectedPath(), "Files");
                EXPECT_TRUE(CWnd::GetFocus()->IsInside(gCurrentPane(rDialog)));
            }));
}

TEST_F(CWholeTreeTest, ThePartitionButtonOfTheSettingsCategorySelectsNothing)
{
    Run(CScript().Do({Open("Settings"), Click("button-6")}).Then([this](CDialog& rDialog) {
        EXPECT_EQ(gFindField(rDialog, "button-6").pControl->GetWindowText(), "Partition");
        EXPECT_EQ(SelectedPath(), "Settings");
    }));
}

TEST_F(CWholeTreeTest, OnlyTheVoltageButtonSpellsPiecewiseLinearWithAHyphen)
{
    const auto expectLabel = [](const char* pLabel) {
        return [pLabel](CDialog& rDialog) {
            EXPECT_EQ(gFindField(rDialog, "button-7").pControl->GetWindowText(), pLabel);
        };
    };
    Run(CScript()
            .Do({Open("Voltage source")})
            .Then(expectLabel("Piecewise-linear"))
            .Do({Open("Current source")})
            .Then(expectLabel("Piecewise linear")));
}

TEST(WizardDialog, OpensOnTheAnalysisCategoryWithAllCollapsedInEveryRun)
{
    gRunWizard({Open("Settings/Temperature")});
    const auto outcome = gRunWizard(CScript().Then([](CDialog& rDialog) {
        EXPECT_EQ(gClassName(rDialog), "CQuorvaCommandDlg");
        EXPECT_EQ(gClassName(gCurrentPane(rDialog)), "CAnalysisPage");
        EXPECT_FALSE(rDialog.GetDlgItem(IDOK)->IsWindowEnabled());
        const CTreeCtrl& rTree = gOpenWizard().GetTree();
        for (HTREEITEM h = rTree.GetRootItem(); h; h = rTree.GetNextSiblingItem(h))
            EXPECT_FALSE(rTree.IsExpanded(h));
    }));
    EXPECT_TRUE(outcome.inserted.empty());
}

TEST(WizardDialog, AddsNoVirtualOperationToTheTreeDialogs)
{
    class CTreeProbe : public CTreeDlg
    {
    public:
        virtual void First() {}
    };
    class CWizardProbe : public CQuorvaCommandDlg
    {
    public:
        virtual void First() {}
    };
    EXPECT_EQ(gVirtualSlot(&CWizardProbe::First), gVirtualSlot(&CTreeProbe::First));
}

TEST(WizardDialog, ACategoryPageBuildsNothingAndSaysNothingWhateverTheStateOfTheDialog)
{
    HeadlessDesktop desktop;
    const auto buildsNothing = [](CCommandPage& rPage) {
        CString sCommand = "before";
        EXPECT_FALSE(rPage.BuildCommand(sCommand));
        EXPECT_EQ(sCommand, "before");
    };
    for (const TCategory& rCategory : kWizard) {
        const auto pObject = CRuntimeClass::FromName(rCategory.node.pClass)->CreateObject();
        buildsNothing(dynamic_cast<CCommandPage&>(*pObject));
    }
    EXPECT_TRUE(desktop.TakeBoxes().empty());

    const auto outcome =
        gRunWizard(CScript()
                       .Do({Open("Settings/Temperature"), Set("temperature-list", "27"), Insert()})
                       .Do({Open("Settings")})
                       .Then([&](CDialog& rDialog) {
                           buildsNothing(dynamic_cast<CCommandPage&>(gCurrentPane(rDialog)));
                       }));
    EXPECT_EQ(outcome.inserted.size(), 1U);
    EXPECT_TRUE(outcome.messages.empty());
}
} // namespace
