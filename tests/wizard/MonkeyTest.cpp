#include "exports/Quorvawiz.h"
#include "platform/ui/FieldView.h"
#include "support/SharedMnemonics.h"
#include "support/Steps.h"
#include "support/WizardRun.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace
{
constexpr int kActions = QUORVAWIZ_LONG_RUNS ? 2'000'000 : 20'000;

/// A user who does anything, wildly, and a look at the whole window after each action.
class CMonkey
{
public:
    explicit CMonkey(unsigned nSeed) : mRandom(nSeed) {}

    bool Act(CDialog& rDialog)
    {
        if (mnLeft-- <= 0)
            return false;
        if (Below(100) == 0)
            FillIn(rDialog);
        else
            gRunStep(rDialog, RandomStep(rDialog));
        ++mnActions;
        LookAt();
        return !testing::Test::HasFailure();
    }

    bool IsDone() const { return mnLeft <= 0; }
    int CountActions() const { return mnActions; }

private:
    /// Wild fingers alone seldom complete a page.
    static void FillIn(CDialog& rDialog)
    {
        for (const TFieldView& rField : gCollectFields(gCurrentPane(rDialog)))
            if (rField.kind == EControl::Edit || rField.kind == EControl::MultilineEdit)
                gRunStep(rDialog, steps::Set(std::string(rField.sKey), "v1 v2"));
        gRunStep(rDialog, steps::Click("insert"));
    }

    int Below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(mRandom); }

    CString RandomText()
    {
        static const char* const kTexts[] = {"",         "0 27 85", " ",    "a\r\nb",
                                             "1k",       "vdd",     "\n",   "\r",
                                             "\xC3\xA9", "opt1",    "v(o)", "x\r\n\r\n"};
        return kTexts[Below(std::size(kTexts))];
    }

    std::string RandomKey(CDialog& rDialog)
    {
        std::vector<std::string> keys{"insert", "close", "tree", "no-such-key"};
        for (const TFieldView& rField : gCollectFields(gCurrentPane(rDialog)))
            keys.insert(keys.end(), 3, std::string(rField.sKey));
        std::string sKey = keys[static_cast<std::size_t>(Below(static_cast<int>(keys.size())))];
        // Closing is rare, so that a run gets somewhere.
        return sKey == "close" && Below(20) != 0 ? "insert" : sKey;
    }

    CString RandomPath()
    {
        const CTreeCtrl& rTree = gOpenWizard().GetTree();
        std::vector<CString> paths{"no/such/path"};
        for (HTREEITEM h = rTree.GetRootItem(); h; h = rTree.GetNextSiblingItem(h)) {
            paths.push_back(rTree.GetItemText(h));
            for (HTREEITEM c = rTree.GetChildItem(h); c; c = rTree.GetNextSiblingItem(c))
                paths.insert(paths.end(), 3, rTree.GetItemText(h) + "/" + rTree.GetItemText(c));
        }
        return paths[static_cast<std::size_t>(Below(static_cast<int>(paths.size())))];
    }

    TStep RandomStep(CDialog& rDialog)
    {
        static const char* const kKeys[] = {"enter", "tab",   "shift+tab", "up",    "down",
                                            "left",  "right", "space",     "alt+i", "alt+l"};
        TStep step;
        step.op = static_cast<EStep>(Below(static_cast<int>(EStep::Key) + 1));
        step.sKey = RandomKey(rDialog);
        step.nIndex = Below(12) - 1;
        step.sText = RandomText();
        if (step.op == EStep::SelectPath || step.op == EStep::Expand ||
            step.op == EStep::Collapse) {
            step.sKey = "tree";
            step.sText = RandomPath();
        } else if (step.op == EStep::Key) {
            step =
                Below(40) == 0 ? steps::Key("escape") : steps::Key(kKeys[Below(std::size(kKeys))]);
        }
        return step;
    }

    void LookAt() const
    {
        CDialog* const pInnermost = gInnermostDialog();
        const CWnd* const pFocus = CWnd::GetFocus();
        ASSERT_TRUE(pFocus && pFocus->IsInside(*pInnermost) && pFocus->CanTakeFocus());

        const CTreeDlg& rWizard = gOpenWizard();
        CWnd* const pPane = rWizard.GetLayers().GetCurrentWindow();
        ASSERT_TRUE(pPane && pPane->IsShown());
        const CTreeCtrl& rTree = rWizard.GetTree();
        ASSERT_NE(rTree.GetSelectedItem(), nullptr);

        ASSERT_EQ(gSharedMnemonics(*pInnermost), "") << gClassName(gCurrentPane(*pInnermost));
    }

    std::mt19937 mRandom;
    int mnLeft = kActions;
    int mnActions = 0;
};

TEST(Monkey, ManyRandomActionsLeaveTheWizardWhole)
{
    CRememberedBase::ResetAll();
    CMonkey monkey(20261120);
    HeadlessDesktop desktop([&monkey](CDialog& rDialog) { return monkey.Act(rDialog); });
    CRecordingTarget target;
    int nRuns = 0;
    while (!monkey.IsDone() && !HasFailure()) {
        quorvawiz::gInvokeSpiceCommandWizard(nullptr, &target);
        ASSERT_TRUE(desktop.Thread().mModalRuns.empty());
        ASSERT_TRUE(desktop.Thread().mPosted.empty());
        ++nRuns;
    }
    EXPECT_EQ(monkey.CountActions(), kActions);
    EXPECT_GT(nRuns, 10) << "the wizard was closed and opened again";
    EXPECT_GT(target.mCommands.size(), 100U);
    CRememberedBase::ResetAll();
}
} // namespace
