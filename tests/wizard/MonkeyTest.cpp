#include "exports/Quorvawiz.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/FieldView.h"
#include "support/SharedMnemonics.h"
#include "support/Steps.h"
#include "support/WizardRun.h"
#include "wizard/frame/Remembered.h"
#include "wizard/frame/WizardPages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <utility>

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
        if (Below(IsInner(rDialog) ? 10 : 50) == 0)
            FillIn(rDialog);
        else
            gRunStep(rDialog, RandomStep(rDialog));
        ++mnActions;
        LookAt();
        return !testing::Test::HasFailure();
    }

    bool IsDone() const { return mnLeft <= 0; }
    int CountActions() const { return mnActions; }
    /// The classes of the pages that were on display.
    const std::set<std::string>& GetVisited() const { return mVisited; }

private:
    /// Wild fingers alone seldom complete a page, and seldom come to its last step.
    void FillIn(CDialog& rDialog)
    {
        FillInStep(rDialog);
        constexpr int kMostSteps = 5;
        for (int n = 0; n < kMostSteps; ++n) {
            const TFieldView next = gFindField(rDialog, "continue");
            if (!next.pControl || !next.pControl->IsUsable())
                break;
            gRunStep(rDialog, steps::Click("continue"));
            LookAt();
            FillInStep(rDialog);
        }
        gRunStep(rDialog, IsInner(rDialog) ? steps::Click("accept") : steps::Insert());
    }

    /// Chooses among what there is, then types into every field that the choices left usable, and
    /// presses some of the buttons: they add to a list, or open a dialog that is soon closed again.
    void FillInStep(CDialog& rDialog)
    {
        for (const TFieldView& rField : gCollectFields(gCurrentPane(rDialog)))
            if (IsUsable(rField))
                ChooseIn(rDialog, rField);
        for (const TFieldView& rField : gCollectFields(gCurrentPane(rDialog)))
            if (IsUsable(rField))
                TypeInto(rDialog, rField);
        if (IsInner(rDialog))
            return;
        for (const TFieldView& rField : gCollectFields(gCurrentPane(rDialog)))
            if (rField.kind == EControl::PushButton && rField.sKey != "continue" &&
                rField.sKey != "back" && IsUsable(rField) && Below(2) == 0)
                gRunStep(rDialog, steps::Click(std::string(rField.sKey)));
    }

    /// True for a dialog that a page has opened.
    static bool IsInner(const CDialog& rDialog) { return &rDialog != &gOpenWizard(); }

    /// A radio group's first button may be disabled alone.
    static bool IsUsable(const TFieldView& rField)
    {
        return rField.pControl->IsUsable() || !rField.radios.empty();
    }

    void ChooseIn(CDialog& rDialog, const TFieldView& rField)
    {
        const std::string sKey(rField.sKey);
        if (rField.kind == EControl::RadioButton)
            gRunStep(rDialog, steps::Choose(sKey, Below(static_cast<int>(rField.radios.size()))));
        if (rField.kind == EControl::CheckBox)
            gRunStep(rDialog, steps::Check(sKey, Below(2) == 0));
        auto* const pCombo = dynamic_cast<CComboBox*>(rField.pControl);
        if (pCombo && pCombo->GetCount() > 0)
            gRunStep(rDialog, steps::Select(sKey, Below(pCombo->GetCount())));
    }

    void TypeInto(CDialog& rDialog, const TFieldView& rField)
    {
        const bool bTyped = rField.kind == EControl::Edit ||
                            rField.kind == EControl::MultilineEdit ||
                            (rField.kind == EControl::DropDown && Below(2) == 0);
        if (bTyped)
            gRunStep(rDialog, steps::Set(std::string(rField.sKey), "v1 v2"));
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

    void LookAt()
    {
        CDialog* const pInnermost = gInnermostDialog();
        const CWnd* const pFocus = CWnd::GetFocus();
        ASSERT_TRUE(pFocus && pFocus->IsInside(*pInnermost) && pFocus->CanTakeFocus());

        const CTreeDlg& rWizard = gOpenWizard();
        CWnd* const pPane = rWizard.GetLayers().GetCurrentWindow();
        ASSERT_TRUE(pPane && pPane->IsShown());
        mVisited.emplace(gClassName(*pPane));
        const CTreeCtrl& rTree = rWizard.GetTree();
        ASSERT_NE(rTree.GetSelectedItem(), nullptr);

        ASSERT_EQ(gSharedMnemonics(*pInnermost), "") << gClassName(gCurrentPane(*pInnermost));
    }

    std::mt19937 mRandom;
    int mnLeft = kActions;
    int mnActions = 0;
    std::set<std::string> mVisited;
};

/// Keeps from which pages there was an insertion, too.
class CPagesTarget : public CRecordingTarget
{
public:
    void InsertCommand(CString sCommand) override
    {
        mPages.emplace(gClassName(*gOpenWizard().GetLayers().GetCurrentWindow()));
        CRecordingTarget::InsertCommand(std::move(sCommand));
    }

    std::set<std::string> mPages; ///< by their classes
};

TEST(Monkey, ManyRandomActionsLeaveTheWizardWhole)
{
    CRememberedBase::ResetAll();
    CMonkey monkey(20261120);
    HeadlessDesktop desktop([&monkey](CDialog& rDialog) { return monkey.Act(rDialog); });
    CPagesTarget target;
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
    std::string sWithout; // luck fails on a page or two
    for (const TTreeRow& rRow : gWizardTree()) {
        const std::string sClass(rRow.sClass);
        EXPECT_TRUE(monkey.GetVisited().contains(sClass)) << sClass;
        const bool bInserted = target.mPages.contains(sClass);
        if (rRow.bCategory) {
            EXPECT_FALSE(bInserted) << sClass;
        } else if (!bInserted) {
            sWithout += sClass + ' ';
        }
    }
    EXPECT_LE(std::ranges::count(sWithout, ' '), 2) << sWithout;
    EXPECT_TRUE(target.mPages.contains("COptimizationWizardPage"));
    CRememberedBase::ResetAll();
}
} // namespace
