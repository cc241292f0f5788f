#pragma once

#include "support/Look.h"
#include "support/Steps.h"
#include "wizard/analysis/StepSweepPage.h"

#include <gtest/gtest.h>

#include <memory>

/// The sweep dialog as a page opens it, again and again, with the prefix "sweep ".
class CSweepDialogTest : public testing::Test
{
protected:
    /// Opens the dialog once. Result: the messages that it showed.
    std::vector<std::string> Open(CScript script)
    {
        const bool bReset = mpDialog->GetResultType() == ESweepType::NotUsed;
        mpDialog->Prepare("sweep ", bReset);
        script.Run(mDesktop, [this] { EXPECT_EQ(mpDialog->DoModal(), mnResult); });
        mBoxes = mDesktop.TakeBoxes();
        std::vector<std::string> messages;
        for (const TShownBox& rBox : mBoxes)
            messages.emplace_back(rBox.box.sText.GetString());
        return messages;
    }

    /// Goes on with a fresh object, as each run of the wizard does.
    void Renew() { mpDialog = std::make_unique<CStepSweepPage>(); }

    HeadlessDesktop mDesktop;
    std::unique_ptr<CStepSweepPage> mpDialog = std::make_unique<CStepSweepPage>();
    int mnResult = 1;              ///< of the next opening; the dialog's own buttons give 1
    std::vector<TShownBox> mBoxes; ///< of the last opening
};
