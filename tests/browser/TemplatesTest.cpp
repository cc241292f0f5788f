#include "browser/BrowserTest.h"
#include "browser/ParameterBrowserCircuitModelDatasetsDlg.h"
#include "browser/ParameterBrowserDeviceDetailsDlg.h"
#include "browser/ParameterBrowserDevicesDlg.h"
#include "browser/ParameterBrowserLibraryModelDetailsDlg.h"
#include "browser/ParameterBrowserModelClassDetailsDlg.h"
#include "browser/ParameterBrowserQuorvaModelsDlg.h"
#include "support/SharedMnemonics.h"
#include "support/TemplateLint.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace
{

class BrowserTemplatesTest : public BrowserTest
{
protected:
    /// Each of the browser's windows.
    std::vector<std::unique_ptr<CDialog>> AllDialogs()
    {
        std::vector<std::unique_ptr<CDialog>> dialogs;
        dialogs.push_back(std::make_unique<TParameterBrowserDevicesDlg>(nullptr, mStore, "", true));
        dialogs.push_back(
            std::make_unique<TParameterBrowserCircuitModelDatasetsDlg>(nullptr, mStore, true));
        dialogs.push_back(std::make_unique<TParameterBrowserQuorvaModelsDlg>(nullptr, mStore, ""));
        dialogs.push_back(std::make_unique<TParameterBrowserLibraryModelDetailsDlg>(
            nullptr, *mStore.GetModelData(0, "n1"), "n1"));
        dialogs.push_back(std::make_unique<TParameterBrowserDeviceDetailsDlg>(
            nullptr, "m1", *mStore.GetDeviceData(0, "m1"), true));
        dialogs.push_back(std::make_unique<TParameterBrowserModelClassDetailsDlg>(
            nullptr, "c", TClassParamRows()));
        return dialogs;
    }
};

TEST_F(BrowserTemplatesTest, TheLintFindsNothing)
{
    for (const auto& pDialog : AllDialogs()) {
        const DialogTemplate& rTemplate = pDialog->GetTemplate();
        EXPECT_EQ(gLintTemplate(rTemplate), std::vector<std::string>{}) << rTemplate.pCaption;
        EXPECT_TRUE(rTemplate.bSizable) << rTemplate.pCaption;
    }
    const TParameterBrowserParamDetailsTab tab({});
    EXPECT_EQ(gLintTemplate(tab.GetTemplate()), std::vector<std::string>{});
}

TEST_F(BrowserTemplatesTest, NoTwoControlsVisibleTogetherShareAMnemonic)
{
    for (const auto& pDialog : AllDialogs()) {
        Play(*pDialog, CScript().Then([](CDialog& rDialog) {
            EXPECT_EQ(gSharedMnemonics(rDialog), "") << gClassName(rDialog);
        }));
    }
}

TEST_F(BrowserTemplatesTest, ADialogOpensAgainAsItWas)
{
    for (const auto& pDialog : AllDialogs()) {
        for (int nRun = 0; nRun < 2; ++nRun) {
            Play(*pDialog, CScript().Do({steps::Click("close")}));
        }
    }
}

} // namespace
