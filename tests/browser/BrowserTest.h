#pragma once

#include "browser/Export.h"
#include "params/SampleStore.h"
#include "support/Steps.h"
#include "support/TempFolder.h"
#include "support/WizardRun.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

/// A store with one of each, a user without a screen, and no export so far.
class BrowserTest : public testing::Test
{
protected:
    BrowserTest()
    {
        gFillSample(mStore);
        gGetLastExportPath().Empty();
    }
    ~BrowserTest() override { gGetLastExportPath().Empty(); }

    /// Runs a dialog while the user does this.
    /// @return what it ended with
    int Play(CDialog& rDialog, CScript script)
    {
        int nResult = 0;
        script.Run(mDesktop, [&] { nResult = rDialog.DoModal(); });
        return nResult;
    }

    /// The user will choose this file of the test's folder.
    /// @return its path
    std::string ChooseFile(std::string_view sName)
    {
        std::string sPath = mFolder.Path(sName);
        mDesktop.AnswerFile({TFileChoice::EEnd::Chosen, sPath});
        return sPath;
    }

    CTempFolder mFolder;
    HeadlessDesktop mDesktop;
    TCircuitParams mStore;
};
