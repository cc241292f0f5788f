#include "wizard/frame/TreeDlg.h"

#include "platform/base/Exceptions.h"
#include "platform/headless/TreePath.h"
#include "platform/ui/Edit.h"
#include "platform/ui/TemplateRows.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "support/VirtualSlot.h"
#include "support/WizardRun.h"
#include "wizard/frame/CommandPage.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>

namespace
{
constexpr auto kRows = JoinRows(
    LabelAbove(Row(1001, "first", EControl::Edit, "", {7, 20, 80, kEditHeight}), "First:"),
    LabelAbove(Row(1002, "second", EControl::Edit, "", {7, 50, 80, kEditHeight}), "Second:"),
    Row(1003, "third", EControl::CheckBox, "Third", {7, 80, 80, 12}));
constexpr DialogTemplate kPaneTemplate{"Pane", kPageSize, kRows};

/// A page that builds what the test says.
class CTestPage : public CCommandPage
{
public:
    CTestPage() : CCommandPage(kPaneTemplate) {}

    bool BuildCommand(CString& rsCommand) override
    {
        ++mnBuilt;
        return mBuild && mBuild(rsCommand);
    }

    std::function<bool(CString&)> mBuild;
    std::function<void()> mOnShown;
    int mnBuilt = 0;
    std::vector<WPARAM> mShown; ///< 1 or 0 per change of its visibility
    std::vector<std::pair<WPARAM, LPARAM>> mNextControl;

protected:
    TMessageMap GetMessageMap() const override
    {
        static constexpr TMessageMapEntry kHandlers[] = {
            OnMessage<&CTestPage::OnShowWindow>(WM_SHOWWINDOW),
            OnMessage<&CTestPage::OnNextControl>(WM_NEXTDLGCTL),
        };
        return kHandlers;
    }

private:
    LRESULT OnShowWindow(WPARAM wParam, LPARAM)
    {
        mShown.push_back(wParam);
        if (wParam != 0 && mOnShown)
            mOnShown();
        return 0;
    }
    LRESULT OnNextControl(WPARAM wParam, LPARAM lParam)
    {
        mNextControl.emplace_back(wParam, lParam);
        return DefWindowProc(WM_NEXTDLGCTL, wParam, lParam);
    }
};

class CTestTreeDlg : public CTreeDlg
{
public:
    using CTreeDlg::AddCategory;
    using CTreeDlg::AddCategoryWithoutPane;
    using CTreeDlg::AddPage;
    using CTreeDlg::CTreeDlg;
    using CTreeDlg::EnableInsert;
    using CTreeDlg::SelectLeaf;

    CTestPage mCategories[2];
    CTestPage mLeaves[3];
    std::vector<int> mResults;

protected:
    void BuildTree() override
    {
        mResults.push_back(AddCategory("One", &mCategories[0]));
        mResults.push_back(AddPage(0, "Leaf 1", &mLeaves[0]));
        mResults.push_back(AddCategory("Two", &mCategories[1]));
        mResults.push_back(AddPage(1, "Leaf 2", &mLeaves[1]));
        mResults.push_back(AddPage(1, "Leaf 3", &mLeaves[2]));
    }
};

using namespace steps;

class CTreeDlgTest : public testing::Test
{
protected:
    /// Runs the dialog with these actions and returns the texts of its boxes.
    std::vector<std::string> Run(CScript script)
    {
        script.Run(mDesktop, [this] { mDialog.DoModal(); });
        std::vector<std::string> texts;
        mBoxes = mDesktop.TakeBoxes();
        for (const TShownBox& rBox : mBoxes)
            texts.emplace_back(rBox.box.sText.GetString());
        return texts;
    }

    bool IsInsertEnabled() const { return mDialog.GetDlgItem(IDOK)->IsWindowEnabled(); }
    std::string SelectedPath() const
    {
        return gTreePathOf(mDialog.GetTree(), mDialog.GetTree().GetSelectedItem());
    }
    CWnd* Pane() const { return mDialog.GetLayers().GetCurrentWindow(); }

    HeadlessDesktop mDesktop;
    CRecordingTarget mTarget;
    CTestTreeDlg mDialog{nullptr, &mTarget};
    std::vector<TShownBox> mBoxes;
};

TEST_F(CTreeDlgTest, TheTemplateIsTheFrameOfTheWizard)
{
    const DialogTemplate& rTemplate = mDialog.GetTemplate();
    EXPECT_STREQ(rTemplate.pCaption, "SPICE Command Wizard");
    EXPECT_EQ(rTemplate.size, (TSize{370, 247}));

    struct Case {
        int nId;
        EControl kind;
        const char* pLabel;
        TRect rect;
    };
    const Case kControls[] = {
        {1, EControl::DefaultButton, "&Insert Command", {238, 230, 68, 14}},
        {2, EControl::PushButton, "Close", {309, 230, 50, 14}},
        {5000, EControl::Tree, "", {5, 5, 100, 220}},
        {5001, EControl::Frame, "", {114, 5, 249, 220}},
    };
    ASSERT_EQ(rTemplate.rows.size(), std::size(kControls));
    for (std::size_t n = 0; n < std::size(kControls); ++n) {
        EXPECT_EQ(rTemplate.rows[n].nId, kControls[n].nId);
        EXPECT_EQ(rTemplate.rows[n].kind, kControls[n].kind);
        EXPECT_STREQ(rTemplate.rows[n].pLabel, kControls[n].pLabel);
        EXPECT_EQ(rTemplate.rows[n].rect, kControls[n].rect);
    }
}

TEST_F(CTreeDlgTest, OpensOnTheFirstCategoryWithInsertDisabledAndAllCollapsed)
{
    Run(CScript().Then([this](CDialog&) {
        EXPECT_EQ(SelectedPath(), "One");
        EXPECT_EQ(Pane(), &mDialog.mCategories[0]);
        EXPECT_FALSE(IsInsertEnabled());
        for (HTREEITEM h = mDialog.GetTree().GetRootItem(); h;
             h = mDialog.GetTree().GetNextSiblingItem(h))
            EXPECT_FALSE(mDialog.GetTree().IsExpanded(h));
        EXPECT_EQ(CWnd::GetFocus(), &mDialog.GetTree());
        EXPECT_FALSE(mDialog.GetDlgItem(5001)->IsShown()) << "the place marker is never shown";
    }));
}

TEST_F(CTreeDlgTest, PanesStandAtTheTopLeftCornerOfThePlaceMarker)
{
    Run(CScript().Then([this](CDialog&) {
        EXPECT_EQ(Pane()->GetRect(), (TRect{114, 5, 249, 220}));
    }));
}

TEST_F(CTreeDlgTest, AddingReturnsThePlaceAmongTheSiblings)
{
    Run({});
    EXPECT_EQ(mDialog.mResults, (std::vector<int>{0, 0, 1, 0, 1}));
}

TEST_F(CTreeDlgTest, ItemDataHoldThePaneInTheOrderOfTheCallsAndTheMarkOfACategory)
{
    Run(CScript().Then([this](CDialog&) {
        const CTreeCtrl& rTree = mDialog.GetTree();
        const auto dataOf = [&](const char* pPath) {
            return rTree.GetItemData(gFindTreePath(rTree, pPath));
        };
        EXPECT_EQ(dataOf("One"), 0x10000);
        EXPECT_EQ(dataOf("One/Leaf 1"), 1);
        EXPECT_EQ(dataOf("Two"), 0x10002);
        EXPECT_EQ(dataOf("Two/Leaf 2"), 3);
        EXPECT_EQ(dataOf("Two/Leaf 3"), 4);
    }));
}

TEST_F(CTreeDlgTest, LabelsAreKeptInTheOrderOfInsertion)
{
    Run(CScript().Then([this](CDialog&) {
        EXPECT_EQ(mDialog.GetLabels(),
                  (std::list<CString>{"One", "Leaf 1", "Two", "Leaf 2", "Leaf 3"}));
    }));
}

TEST_F(CTreeDlgTest, ANodeThatCannotBeFoundAgainHasThePlaceMinusOne)
{
    CTestPage page;
    EXPECT_EQ(mDialog.AddCategory("No window yet", &page), -1);
    EXPECT_EQ(mDialog.AddPage(0, "No window yet", &page), -1);
    EXPECT_EQ(mDialog.AddCategoryWithoutPane("No window yet"), -1);
    mDialog.EnableInsert(true);
}

TEST_F(CTreeDlgTest, APageForACategoryThatDoesNotExistIsRefusedAndItsLabelStays)
{
    Run(CScript().Then([this](CDialog&) {
        const std::size_t nLabels = mDialog.GetLabels().size();
        CTestPage page;
        EXPECT_EQ(mDialog.AddPage(2, "Nowhere", &page), -1);
        EXPECT_EQ(mDialog.GetLayers().GetCount(), 5) << "no pane has been added";
        EXPECT_EQ(mDialog.GetLabels().size(), nLabels + 1) << "the label stays in the list";
        EXPECT_EQ(mDialog.GetLabels().back(), "Nowhere");
    }));
}

TEST_F(CTreeDlgTest, ALeafEnablesInsertAndItsCategoryDisablesItAgain)
{
    Run(CScript()
            .Do({Open("Two/Leaf 2")})
            .Then([this](CDialog&) {
                EXPECT_TRUE(IsInsertEnabled());
                EXPECT_EQ(Pane(), &mDialog.mLeaves[1]);
                EXPECT_TRUE(mDialog.GetTree().IsExpanded(gFindTreePath(mDialog.GetTree(), "Two")))
                    << "a selected child is made visible";
            })
            .Do({Open("Two")})
            .Then([this](CDialog&) {
                EXPECT_FALSE(IsInsertEnabled());
                EXPECT_EQ(Pane(), &mDialog.mCategories[1]);
            }));
}

TEST_F(CTreeDlgTest, SelectionByProgramShowsThePaneOfANodeThatIsSelectedAlready)
{
    Run(CScript().Do({Open("Two/Leaf 3")}).Then([this](CDialog&) {
        Pane()->ShowWindow(SW_HIDE);
        mDialog.EnableInsert(false);
        EXPECT_TRUE(mDialog.SelectLeaf(1, 1));
        EXPECT_TRUE(mDialog.mLeaves[2].IsShown());
        EXPECT_FALSE(IsInsertEnabled()) << "no notification";
    }));
}

TEST_F(CTreeDlgTest, SelectionByProgramShowsThePaneTwiceOnceThroughTheNotification)
{
    Run(CScript().Then([this](CDialog&) {
        EXPECT_TRUE(mDialog.SelectLeaf(1, 0));
        EXPECT_EQ(mDialog.mLeaves[1].mShown, (std::vector<WPARAM>{1, 0, 1}));
    }));
}

TEST_F(CTreeDlgTest, ALeafEnablesInsertBeforeItsPaneIsShownAndACategoryDisablesItAfter)
{
    bool bAtLeaf = false;
    bool bAtCategory = false;
    mDialog.mLeaves[0].mOnShown = [&] { bAtLeaf = IsInsertEnabled(); };
    mDialog.mCategories[1].mOnShown = [&] { bAtCategory = IsInsertEnabled(); };
    Run(CScript().Do({Open("One/Leaf 1"), Open("Two")}));
    EXPECT_TRUE(bAtLeaf);
    EXPECT_TRUE(bAtCategory);
}

TEST_F(CTreeDlgTest, SelectingALeafThatDoesNotExistChangesNothing)
{
    Run(CScript().Do({Open("One/Leaf 1")}).Then([this](CDialog&) {
        for (const auto& [nCategory, nPage] : {std::pair{0, 1}, {2, 0}, {-1, 0}, {0, -1}})
            EXPECT_FALSE(mDialog.SelectLeaf(nCategory, nPage));
        EXPECT_EQ(SelectedPath(), "One/Leaf 1");
        EXPECT_EQ(Pane(), &mDialog.mLeaves[0]);
    }));
}

TEST_F(CTreeDlgTest, ARootNodeWithoutAPaneHasTheDatumMinusOneAndShowsNothing)
{
    Run(CScript()
            .Then([this](CDialog&) {
                EXPECT_EQ(mDialog.AddCategoryWithoutPane("Empty"), 2);
                const CTreeCtrl& rTree = mDialog.GetTree();
                EXPECT_EQ(rTree.GetItemData(gFindTreePath(rTree, "Empty")), -1);
                EXPECT_EQ(mDialog.GetLayers().GetCount(), 5);
            })
            .Do({Open("One/Leaf 1"), Open("Empty")})
            .Then([this](CDialog&) {
                EXPECT_FALSE(IsInsertEnabled());
                EXPECT_EQ(Pane(), &mDialog.mLeaves[0]);
            })
            .Do({Open("Two/Leaf 2")}));
}

TEST_F(CTreeDlgTest, InsertIsEnabledAndDisabledByItsArgument)
{
    Run(CScript().Then([this](CDialog&) {
        mDialog.EnableInsert(true);
        EXPECT_TRUE(IsInsertEnabled());
        mDialog.EnableInsert(false);
        EXPECT_FALSE(IsInsertEnabled());
    }));
}

// --- the message that category pages post

TEST_F(CTreeDlgTest, TheSelectMessageIsTakenByTheDialogAndMovesTheFocusIntoThePane)
{
    Run(CScript()
            .Then([this](CDialog&) {
                EXPECT_TRUE(Pane()->PostMessage(WM_APP + 5, 1, 1));
                EXPECT_EQ(SelectedPath(), "One") << "posted: the click ends first";
            })
            .Then([this](CDialog&) {
                EXPECT_EQ(SelectedPath(), "Two/Leaf 3");
                EXPECT_TRUE(IsInsertEnabled());
                EXPECT_EQ(CWnd::GetFocus(), mDialog.mLeaves[2].GetDlgItem(1001));
            }));
}

TEST_F(CTreeDlgTest, ASelectMessageBeyondTheLastChildMovesOnlyTheFocus)
{
    struct Case {
        WPARAM nCategory;
        LPARAM nPage;
    };
    for (const Case& rCase : {Case{0, 1}, Case{0, 99}, Case{0, -1}, Case{2, 0}, Case{99, 0}}) {
        Run(CScript()
                .Then([&](CDialog&) {
                    Pane()->PostMessage(WM_APP + 5, rCase.nCategory, rCase.nPage);
                })
                .Then([&](CDialog&) {
                    EXPECT_EQ(SelectedPath(), "One") << rCase.nCategory << ' ' << rCase.nPage;
                    EXPECT_EQ(Pane(), &mDialog.mCategories[0]);
                    EXPECT_EQ(CWnd::GetFocus(), Pane()->GetDlgItem(1001));
                }));
    }
}

// --- keys and questions

TEST_F(CTreeDlgTest, TabGoesRoundInsideAPage)
{
    const auto expectFocus = [this](int nId) {
        return [this, nId](CDialog&) { EXPECT_EQ(CWnd::GetFocus(), Pane()->GetDlgItem(nId)); };
    };
    Run(CScript()
            .Do({Open("One/Leaf 1"), Focus("first"), Key("tab")})
            .Then(expectFocus(1002))
            .Do({Key("tab")})
            .Then(expectFocus(1003))
            .Do({Key("tab")})
            .Then(expectFocus(1001))
            .Do({Key("shift+tab")})
            .Then(expectFocus(1003))
            .Do({Key("shift+tab")})
            .Then(expectFocus(1002)));
}

TEST_F(CTreeDlgTest, OutsideAPageTabGoesRoundTheFrameAndIntoThePage)
{
    Run(CScript()
            .Do({Open("One/Leaf 1")})
            .Then([this](CDialog&) { EXPECT_EQ(CWnd::GetFocus(), &mDialog.GetTree()); })
            .Do({Key("tab")})
            .Then([this](CDialog&) { EXPECT_EQ(CWnd::GetFocus(), Pane()->GetDlgItem(1001)); })
            .Then([this](CDialog&) { mDialog.GetDlgItem(IDOK)->SetFocus(); })
            .Do({Key("tab")})
            .Then([this](CDialog&) { EXPECT_EQ(CWnd::GetFocus(), mDialog.GetDlgItem(IDCANCEL)); })
            .Do({Key("tab")})
            .Then([this](CDialog&) { EXPECT_EQ(CWnd::GetFocus(), &mDialog.GetTree()); })
            .Do({Key("shift+tab"), Key("shift+tab")})
            .Then([this](CDialog&) { EXPECT_EQ(CWnd::GetFocus(), mDialog.GetDlgItem(IDOK)); })
            .Do({Key("shift+tab")})
            .Then([this](CDialog&) {
                EXPECT_EQ(CWnd::GetFocus(), Pane()->GetDlgItem(1001)) << "the control that had it";
            }));
}

TEST_F(CTreeDlgTest, OnlyTheTabKeyMovesTheFocusIntoThePagesNextControl)
{
    Run(CScript().Do({Open("One/Leaf 1"), Focus("first")}).Then([this](CDialog&) {
        mDialog.SendMessage(WM_KEYDOWN, 'A');
        EXPECT_EQ(CWnd::GetFocus(), Pane()->GetDlgItem(1001));
        mDialog.SendMessage(WM_KEYDOWN, VK_TAB);
        EXPECT_EQ(CWnd::GetFocus(), Pane()->GetDlgItem(1002));
        EXPECT_EQ(mDialog.mLeaves[0].mNextControl,
                  (std::vector<std::pair<WPARAM, LPARAM>>{{0, 0}}));
    }));
}

TEST_F(CTreeDlgTest, TheDialogAnswersNextControlWithZeroAndIgnoresIt)
{
    Run(CScript().Do({Open("One/Leaf 1"), Focus("first")}).Then([this](CDialog&) {
        EXPECT_EQ(mDialog.SendMessage(WM_NEXTDLGCTL), 0);
        EXPECT_EQ(CWnd::GetFocus(), Pane()->GetDlgItem(1001));
    }));
}

TEST_F(CTreeDlgTest, TheDragIconIsNeverSet)
{
    Run(CScript().Then([this](CDialog&) { EXPECT_EQ(mDialog.SendMessage(WM_QUERYDRAGICON), 0); }));
}

TEST_F(CTreeDlgTest, OtherSystemMessagesAreThePlatforms)
{
    Run(CScript().Then([this](CDialog&) {
        EXPECT_EQ(mDialog.SendMessage(WM_PAINT), 0);
        EXPECT_EQ(mDialog.SendMessage(WM_SYSCOMMAND, 0xF000), 0);
        EXPECT_FALSE(mDialog.HasEnded());
        mDialog.SendMessage(WM_SYSCOMMAND, SC_CLOSE);
        EXPECT_TRUE(mDialog.HasEnded()) << "the title bar's close";
    }));
}

// --- inserting

TEST_F(CTreeDlgTest, InsertHandsTheTextOfThePageOnDisplayToTheTargetAndStaysOpen)
{
    mDialog.mLeaves[0].mBuild = [](CString& rsCommand) {
        rsCommand = ".op";
        return true;
    };
    Run(CScript().Do({Open("One/Leaf 1"), Insert(), Insert()}).Then([this](CDialog&) {
        EXPECT_FALSE(mDialog.HasEnded());
    }));
    EXPECT_EQ(mTarget.mCommands, (std::vector<std::string>{".op", ".op"}));
}

TEST_F(CTreeDlgTest, AFailedCheckReachesTheTargetNotAtAll)
{
    mDialog.mLeaves[0].mBuild = [](CString& rsCommand) {
        rsCommand = ".ac ";
        return false;
    };
    Run(CScript().Do({Open("One/Leaf 1"), Insert()}).Then([this](CDialog&) {
        EXPECT_FALSE(mDialog.HasEnded());
        EXPECT_TRUE(IsInsertEnabled());
    }));
    EXPECT_TRUE(mTarget.mCommands.empty());
    EXPECT_EQ(mDialog.GetCommand(), ".ac ") << "one string for the run, never emptied";
}

TEST_F(CTreeDlgTest, AllPagesOfARunWriteToOneCommandString)
{
    mDialog.mLeaves[0].mBuild = [](CString& rsCommand) {
        EXPECT_TRUE(rsCommand.IsEmpty()) << "empty at construction";
        rsCommand = "first";
        return true;
    };
    mDialog.mLeaves[1].mBuild = [](CString& rsCommand) {
        EXPECT_EQ(rsCommand, "first") << "not emptied between calls";
        return true;
    };
    Run(CScript().Do({Open("One/Leaf 1"), Insert(), Open("Two/Leaf 2"), Insert()}));
    EXPECT_EQ(mTarget.mCommands, (std::vector<std::string>{"first", "first"}));
}

TEST_F(CTreeDlgTest, AnEmptyTextGoesToTheTargetLikeAnyOther)
{
    mDialog.mLeaves[0].mBuild = [](CString&) { return true; };
    Run(CScript().Do({Open("One/Leaf 1"), Insert()}));
    EXPECT_EQ(mTarget.mCommands, std::vector<std::string>{""});
}

TEST_F(CTreeDlgTest, ATextWithANonAsciiByteAtAnyPositionIsRefusedWithTheOneMessage)
{
    const CBracketTranslation translation;
    for (const char* pText : {"\x80", "\xC3\xA9x", "x\xC3\xA9", "ab\xFFyz"}) {
        mDialog.mLeaves[0].mBuild = [pText](CString& rsCommand) {
            rsCommand = pText;
            return true;
        };
        const auto texts = Run(CScript().Do({Open("One/Leaf 1"), Insert()}));
        ASSERT_EQ(texts, std::vector<std::string>{"[Only ASCII characters are allowed]"});
        EXPECT_EQ(mBoxes[0].box.pOwner, &mDialog);
        EXPECT_EQ(mBoxes[0].box.sCaption, CString("SPICE"));
        EXPECT_EQ(mBoxes[0].box.nFlags, MB_OK | MB_ICONINFORMATION);
    }
    EXPECT_TRUE(mTarget.mCommands.empty());
}

TEST_F(CTreeDlgTest, InsertIsRefusedOnACategoryAndDoesNothingShouldItRunAllTheSame)
{
    class COpenDlg : public CTestTreeDlg
    {
    public:
        using CTestTreeDlg::CTestTreeDlg;
        using CTreeDlg::OnOK;
    };
    COpenDlg dialog(nullptr, &mTarget);
    CScript script;
    script.Refused(Insert(), EStepEnd::Refused, EUserResult::Disabled);
    script.Refused(Key("enter"), EStepEnd::Refused, EUserResult::Disabled);
    script.Then([&dialog](CDialog&) { dialog.OnOK(); });
    script.Run(mDesktop, [&dialog] { dialog.DoModal(); });
    EXPECT_EQ(dialog.mCategories[0].mnBuilt, 1);
    EXPECT_TRUE(mTarget.mCommands.empty());
    EXPECT_TRUE(mDesktop.TakeBoxes().empty());
}

TEST_F(CTreeDlgTest, EnterInAFieldInserts)
{
    mDialog.mLeaves[0].mBuild = [](CString& rsCommand) {
        rsCommand = ".op";
        return true;
    };
    Run(CScript().Do({Open("One/Leaf 1"), Focus("second"), Key("enter")}).Then([this](CDialog&) {
        EXPECT_EQ(CWnd::GetFocus(), Pane()->GetDlgItem(1002)) << "the focus stays";
    }));
    EXPECT_EQ(mTarget.mCommands, std::vector<std::string>{".op"});
}

TEST_F(CTreeDlgTest, ANullTargetFailsAtTheFirstInsertionAndNotBefore)
{
    CTestTreeDlg dialog(nullptr, nullptr);
    dialog.mLeaves[0].mBuild = [](CString&) { return true; };
    CScript script;
    script.Do({Open("One/Leaf 1")});
    script.Then([](CDialog& rDialog) { gRunStep(rDialog, Insert()); });
    EXPECT_THROW(script.Run(mDesktop, [&dialog] { dialog.DoModal(); }), CInvalidArgException);
    EXPECT_FALSE(dialog.IsCreated());
}

TEST_F(CTreeDlgTest, CloseAndEscapeEndTheRunAtOnceWithCancel)
{
    for (const TStep& rStep : {Close(), Key("escape")}) {
        int nResult = 0;
        CScript().Do({rStep}).Run(mDesktop, [&] { nResult = mDialog.DoModal(); });
        EXPECT_EQ(nResult, IDCANCEL);
    }
}

TEST_F(CTreeDlgTest, MembersStandInTheirOrderAndBuildTreeIsTheOneOperationItAdds)
{
    const auto place = [](const auto& rMember) {
        return reinterpret_cast<std::uintptr_t>(&rMember);
    };
    EXPECT_LT(place(mDialog.GetCommand()), place(mDialog.GetTree()));
    EXPECT_LT(place(mDialog.GetTree()), place(mDialog.GetLayers()));
    EXPECT_LT(place(mDialog.GetLayers()), place(mDialog.GetLabels()));

    class COpenDlg : public CTreeDlg
    {
    public:
        using CTreeDlg::BuildTree;
    };
    class CDialogProbe : public CDialog
    {
    public:
        virtual void First() {}
    };
    EXPECT_EQ(gVirtualSlot(&COpenDlg::BuildTree), gVirtualSlot(&CDialogProbe::First));
}

TEST_F(CTreeDlgTest, APaneThatIsNoCommandPageLeavesTheTextAsItIs)
{
    class CPlainDlg : public CTreeDlg
    {
    public:
        using CTreeDlg::CTreeDlg;
        using CTreeDlg::OnOK;
        CWnd mPlain;

    protected:
        void BuildTree() override { AddCategory("Plain", &mPlain); }
    };
    CPlainDlg dialog(nullptr, &mTarget);
    CScript()
        .Then([&dialog](CDialog&) {
            EXPECT_TRUE(dialog.mPlain.IsWindowVisible());
            dialog.OnOK();
        })
        .Run(mDesktop, [&dialog] { dialog.DoModal(); });
    EXPECT_EQ(mTarget.mCommands, std::vector<std::string>{""});
}
} // namespace
