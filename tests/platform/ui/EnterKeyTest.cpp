#include "platform/ui/Button.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Edit.h"
#include "platform/ui/PropertyPage.h"
#include "platform/ui/SampleDialog.h"
#include "platform/ui/TemplateRows.h"
#include "platform/ui/UserKey.h"

#include <gtest/gtest.h>

namespace
{
/// A dialog whose OnOK and OnCancel are written down and end nothing.
class CKeyDialog : public CSampleDialog
{
protected:
    void OnOK() override { Write("OK"); }
    void OnCancel() override { Write("Cancel"); }
};

TEST(EnterKeyTest, DependsOnWhereTheFocusIs)
{
    const TStory kStories[] = {
        {"an edit", {"focus name", "key enter"}, {"ok:clicked", "OK"}},
        {"a push button", {"focus press", "key enter"}, {"press:clicked"}},
        {"the Cancel button", {"focus cancel", "key enter"}, {"cancel:clicked", "Cancel"}},
        {"the default button itself", {"focus ok", "key enter"}, {"ok:clicked", "OK"}},
        {"lines that want Return", {"focus notes", "key enter"}, {"notes:change"}},
        {"lines that don't", {"focus memo", "key enter"}, {"ok:clicked", "OK"}},
        {"a check box isn't pressed", {"focus again", "key enter"}, {"ok:clicked", "OK"}},
        {"nor a radio button", {"focus level", "key enter"}, {"ok:clicked", "OK"}},
        {"a list", {"focus fruit", "key enter"}, {"ok:clicked", "OK"}},
        {"a tree", {"focus places", "key enter"}, {"ok:clicked", "OK"}},
    };
    for (const TStory& rStory : kStories) {
        SCOPED_TRACE(rStory.pName);
        CKeyDialog dialog;
        gLookInto(dialog, [&] { EXPECT_EQ(gTellStory(dialog, rStory.actions), rStory.expected); });
    }
}

TEST(EnterKeyTest, TheDefaultButtonIsPressedFromAfar)
{
    CKeyDialog dialog;
    gLookInto(dialog, [&] {
        gAct(dialog, "focus memo");
        gAct(dialog, "key enter");
        EXPECT_EQ(gFocusName(), "memo");
    });
}

TEST(EnterKeyTest, ARefusingDefaultButtonRefusesTheKey)
{
    CKeyDialog dialog;
    gLookInto(dialog, [&] {
        dialog.GetDlgItem(IDOK)->EnableWindow(false);
        EXPECT_EQ(gAct(dialog, "key enter"), "disabled");
        dialog.GetDlgItem(IDOK)->ShowWindow(SW_HIDE);
        EXPECT_EQ(gAct(dialog, "key enter"), "hidden");
        EXPECT_EQ(dialog.TakeLog(), TLog{});
        EXPECT_EQ(gAct(dialog, "focus press"), "");
        EXPECT_EQ(gAct(dialog, "key enter"), "") << "another button is pressed all the same";
        EXPECT_EQ(dialog.TakeLog(), TLog{"press:clicked"});
    });
}

TEST(EnterKeyTest, StartsANewLineAtTheEnd)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        gAct(dialog, "set notes=one");
        gAct(dialog, "key enter");
        gAct(dialog, "key enter");
        EXPECT_EQ(dialog.Get<CEdit>(kNotes).GetWindowText(), "one\r\n\r\n");
        EXPECT_FALSE(dialog.HasEnded());
    });
}

// --- dialogs with other buttons

constexpr int kOther = 50;
constexpr auto kOtherDefaultRows = JoinRows(Row(1000, "name", EControl::Edit, "", {}),
                                            Row(IDOK, "ok", EControl::PushButton, "", {}),
                                            Row(kOther, "other", EControl::DefaultButton, "", {}));
constexpr DialogTemplate kOtherDefault{"Other default", {50, 50}, kOtherDefaultRows};
constexpr auto kPlainOkRows = JoinRows(Row(1000, "name", EControl::Edit, "", {}),
                                       Row(IDOK, "ok", EControl::PushButton, "", {}));
constexpr DialogTemplate kPlainOk{"Plain OK", {50, 50}, kPlainOkRows};
constexpr auto kNoButtonRows = JoinRows(Row(1000, "name", EControl::Edit, "", {}));
constexpr DialogTemplate kNoButton{"No button", {50, 50}, kNoButtonRows};

TEST(EnterKeyTest, AnotherDefaultButtonRunsInsteadOfOnOK)
{
    CLogDialog dialog(kOtherDefault);
    gLookInto(dialog, [&] {
        EXPECT_EQ(dialog.GetDefaultButton(), dialog.GetDlgItem(kOther));
        EXPECT_EQ(gAct(dialog, "key enter"), "");
        EXPECT_EQ(dialog.TakeLog(), TLog{"other:clicked"});
        EXPECT_FALSE(dialog.HasEnded());
    });
}

TEST(EnterKeyTest, APushButtonWithTheIdOfOKIsTheDefault)
{
    CLogDialog dialog(kPlainOk);
    gLookInto(dialog, [&] {
        EXPECT_EQ(dialog.GetDefaultButton(), dialog.GetDlgItem(IDOK));
        EXPECT_EQ(gAct(dialog, "key enter"), "");
        EXPECT_EQ(dialog.TakeLog(), TLog{"ok:clicked"});
        EXPECT_TRUE(dialog.HasEnded());
    });
}

TEST(EnterKeyTest, WithoutADefaultButtonOnOKPullsTheEdits)
{
    HeadlessDesktop desktop;
    CLogDialog dialog(kNoButton);
    CString sName = "start";
    dialog.Exchange([&](CDataExchange* pDX) { DDX_Text(pDX, 1000, sName); });
    EXPECT_EQ(gRunTurns(desktop, dialog,
                        {[&](CDialog& r) {
                             EXPECT_EQ(dialog.GetDefaultButton(), nullptr);
                             EXPECT_EQ(gAct(r, "set name=typed"), "");
                             EXPECT_EQ(sName, "start");
                         },
                         [](CDialog& r) { EXPECT_EQ(gAct(r, "key enter"), ""); }}),
              IDOK);
    EXPECT_EQ(sName, "typed");
}

TEST(EnterKeyTest, OKInAPaneEndsNothing)
{
    CSampleDialog dialog;
    CPropertyPage pane(kPlainOk);
    gLookInto(dialog, [&] {
        ASSERT_TRUE(pane.CreatePane(dialog));
        pane.ShowWindow(SW_SHOW);
        EXPECT_EQ(dynamic_cast<CButton&>(*pane.GetDlgItem(IDOK)).UserClick(), EUserResult::Done);
        EXPECT_FALSE(dialog.HasEnded());
    });
}

// --- Escape and the other ways out

TEST(EscapeKeyTest, IsCancelWhereverTheFocusIs)
{
    for (const char* pFocus : {"focus name", "focus notes", "focus press", "focus ok",
                               "focus cancel", "focus level", "focus shape", "focus places"}) {
        CKeyDialog dialog;
        gLookInto(dialog, [&] {
            EXPECT_EQ(gTellStory(dialog, {pFocus, "key escape"}), TLog{"Cancel"}) << pFocus;
        });
    }
}

TEST(EscapeKeyTest, DoesntRunACancelButtonOfAnotherId)
{
    static constexpr auto kRows = JoinRows(Row(1000, "name", EControl::Edit, "", {}),
                                           Row(77, "cancel", EControl::PushButton, "Cancel", {}));
    static constexpr DialogTemplate kTemplate{"Cancel", {50, 50}, kRows};
    HeadlessDesktop desktop;
    CLogDialog dialog(kTemplate);
    EXPECT_EQ(gRunTurns(desktop, dialog, {[](CDialog& r) { gAct(r, "key escape"); }}), IDCANCEL);
    EXPECT_EQ(dialog.TakeLog(), TLog{});
}

TEST(EscapeKeyTest, TheTitleBarsCloseIsCancel)
{
    CKeyDialog dialog;
    gLookInto(dialog, [&] {
        dialog.SendMessage(WM_SYSCOMMAND, SC_CLOSE);
        EXPECT_EQ(dialog.TakeLog(), TLog{"Cancel"});
        dialog.SendMessage(WM_SYSCOMMAND, 0xF020);
        EXPECT_EQ(dialog.TakeLog(), TLog{});
    });
}

TEST(EscapeKeyTest, EndsTheInnermostDialogOnly)
{
    HeadlessDesktop desktop;
    CSampleDialog outer;
    CSampleDialog inner;
    int nInner = 0;
    outer.React("press:clicked", [&] { nInner = inner.DoModal(); });
    gRunTurns(desktop, outer,
              {[](CDialog& r) { gAct(r, "click press"); },
               [](CDialog& r) { gAct(r, "key escape"); },
               [&](CDialog& r) {
                   EXPECT_EQ(&r, &outer);
                   EXPECT_EQ(nInner, IDCANCEL);
               }});
}

TEST(SpaceKeyTest, PressesButtonsAndTypesABlank)
{
    const TStory kStories[] = {
        {"push button", {"focus press", "key space"}, {"press:clicked"}},
        {"check box",
         {"focus again", "key space", "key space"},
         {"again:clicked", "again:clicked"}},
        {"radio button", {"focus level", "key space"}, {"level#0:clicked"}},
        {"the checked radio button",
         {"choose level=1", "key space"},
         {"level#1:clicked", "level#1:clicked"}},
        {"edit", {"focus name", "key space"}, {"name:change"}},
        {"read-only edit", {"focus fixed", "key space"}, {"! read-only"}},
        {"list", {"focus fruit", "key space"}, {"! wrong kind"}},
    };
    for (const TStory& rStory : kStories)
        gCheckStory(rStory);

    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        gTellStory(dialog, {"set name=a", "key space", "focus again", "key space"});
        EXPECT_EQ(dialog.Get<CEdit>(kName).GetWindowText(), "a ");
        EXPECT_EQ(dialog.Get<CButton>(kAgain).GetCheck(), 1);
    });
}

TEST(UserKeyTest, WithoutADialogKeysAreBlocked)
{
    HeadlessDesktop desktop;
    EXPECT_EQ(gUserKey({TUserKey::EKey::Enter}), EUserResult::Blocked);
}
} // namespace
