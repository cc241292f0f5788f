// Where the buttons of the categories of files, initial values and settings lead to.

#include "platform/ui/FieldView.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/WizardRun.h"
#include "wizard/frame/TreeSelectPage.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

using SetupCategories = PageTest;

struct TButton {
    const char* pCategory;
    int nCategory; ///< its place among the root nodes
    int nButton;   ///< from 0: the place that it posts
    const char* pLabel;
    const char* pClass; ///< of the page that it leads to, or stays on
};

const TButton kButtons[] = {
    {"Files", 2, 0, "Include", "CFilesIncludePage"},
    {"Files", 2, 1, "Library", "CFilesLibraryPage"},
    {"Files", 2, 2, "Table", "CFilesDeleteLibraryPage"},
    {"Files", 2, 3, "Delete library file", "CFilesPage"},
    {"Initialization", 3, 0, "DC guess", "CInitializationDCGuessPage"},
    {"Initialization", 3, 1, "Initial condition", "CInitializationInitialConditionPage"},
    {"Settings", 5, 0, "Bus definition", "CSettingsBusDefinitionPage"},
    {"Settings", 5, 1, "Global nodes", "CSettingsGlobalNodesPage"},
    {"Settings", 5, 2, "Parameters", "CSettingsParametersPage"},
    {"Settings", 5, 3, "Simulation options", "CSettingsSimulationOptionsPage"},
    {"Settings", 5, 4, "Temperature", "CSettingsTemperaturePage"},
    {"Settings", 5, 5, "Partition", "CSettingsPage"},
};

TEST_F(SetupCategories, EachButtonLeadsToItsPage)
{
    for (const TButton& rButton : kButtons) {
        SCOPED_TRACE(rButton.pLabel);
        const std::string sKey = "button-" + std::to_string(rButton.nButton + 1);
        gRunWizard(CScript()
                       .Do({Open(rButton.pCategory)})
                       .Then([&](CDialog& rDialog) {
                           EXPECT_EQ(gFindField(rDialog, sKey).pControl->GetWindowText(),
                                     rButton.pLabel);
                       })
                       .Do({Click(sKey)})
                       .Then([&](CDialog& rDialog) {
                           EXPECT_EQ(gClassName(gCurrentPane(rDialog)), rButton.pClass);
                       }));
    }
}

TEST_F(SetupCategories, EachButtonPostsThePlacesOfItsCategoryAndItsPage)
{
    for (const TButton& rButton : kButtons) {
        SCOPED_TRACE(rButton.pLabel);
        gRunWizard(CScript().Do({Open(rButton.pCategory)}).Then([&](CDialog& rDialog) {
            gRunStep(rDialog, Click("button-" + std::to_string(rButton.nButton + 1)));
            const auto& rPosted = gDesktop().Thread().mPosted;
            ASSERT_EQ(rPosted.size(), 1U);
            EXPECT_EQ(rPosted[0].nMessage, WM_TREE_SELECT_PAGE);
            EXPECT_EQ(rPosted[0].wParam, static_cast<WPARAM>(rButton.nCategory));
            EXPECT_EQ(rPosted[0].lParam, rButton.nButton);
        }));
    }
}
} // namespace
