#include "platform/base/Exceptions.h"
#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Edit.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/LogDialog.h"
#include "platform/ui/PropertyPage.h"
#include "platform/ui/TemplateRows.h"

#include <gtest/gtest.h>

#include <functional>
#include <string_view>

namespace
{
enum EId { kFirst = 1, kSecond, kThird };
constexpr const char* kEntries[] = {"one", "two", "three"};
constexpr auto kRows = JoinRows(Row(kFirst, "first", EControl::Edit, "start", {1, 2, 3, 13}),
                                Row(kSecond, "second", EControl::DropDownList, "", {1, 20, 3, 13},
                                    kDisabled | kHidden, 6, kEntries),
                                Row(kThird, "third", EControl::CheckBox, "&Third", {1, 40, 3, 12}));
constexpr DialogTemplate kTemplate{"Binding", {50, 60}, kRows};

/// A dialog with members that it binds as told.
struct TBindingDialog : CLogDialog {
    TBindingDialog() : CLogDialog(kTemplate) {}
    CEdit mEdit;
    CComboBox mCombo;
    CButton mCheck;
    CListBox mList;

    void BindAll()
    {
        Exchange([this](CDataExchange* pDX) {
            DDX_Control(pDX, kThird, mCheck);
            DDX_Control(pDX, kFirst, mEdit);
            DDX_Control(pDX, kSecond, mCombo);
        });
    }
};

TEST(BindingTest, TheMemberIsTheControl)
{
    TBindingDialog dialog;
    dialog.BindAll();
    gLookInto(dialog, [&] {
        EXPECT_EQ(dialog.GetDlgItem(kFirst), &dialog.mEdit);
        EXPECT_EQ(dialog.GetDlgItem(kSecond), &dialog.mCombo);
        EXPECT_EQ(dialog.GetDlgItem(kThird), &dialog.mCheck);
        // In the order of the template, whatever the order of the binding was.
        EXPECT_EQ(dialog.GetChildren(),
                  (std::vector<CWnd*>{&dialog.mEdit, &dialog.mCombo, &dialog.mCheck}));
        EXPECT_EQ(dialog.mEdit.GetParent(), &dialog);
    });
}

TEST(BindingTest, ARowThatIsNotBoundGetsAControlOfItsKind)
{
    TBindingDialog dialog;
    dialog.Exchange([&dialog](CDataExchange* pDX) { DDX_Control(pDX, kFirst, dialog.mEdit); });
    gLookInto(dialog, [&] {
        EXPECT_EQ(dialog.GetDlgItem(kFirst), &dialog.mEdit);
        EXPECT_EQ(dialog.Get<CComboBox>(kSecond).GetCount(), 3);
        EXPECT_EQ(dialog.Get<CButton>(kThird).GetKind(), EControl::CheckBox);
        EXPECT_FALSE(dialog.mCombo.IsCreated());
    });
}

TEST(BindingTest, AControlStartsAsItsRowSays)
{
    TBindingDialog dialog;
    dialog.BindAll();
    gLookInto(dialog, [&] {
        EXPECT_EQ(dialog.mEdit.GetWindowText(), "start");
        EXPECT_EQ(std::string_view(dialog.mEdit.GetKey()), "first");
        EXPECT_EQ(dialog.mEdit.GetDlgCtrlID(), kFirst);
        EXPECT_EQ(dialog.mEdit.GetKind(), EControl::Edit);
        EXPECT_EQ(dialog.mEdit.GetRect(), (TRect{1, 2, 3, 13}));
        EXPECT_TRUE(dialog.mEdit.IsShown());
        EXPECT_TRUE(dialog.mEdit.IsWindowEnabled());

        EXPECT_EQ(dialog.mCombo.GetCount(), 3);
        EXPECT_EQ(dialog.mCombo.GetCurSel(), -1);
        EXPECT_EQ(dialog.mCombo.GetLayers(), 6U);
        EXPECT_FALSE(dialog.mCombo.IsShown());
        EXPECT_FALSE(dialog.mCombo.IsWindowEnabled());

        EXPECT_EQ(dialog.mCheck.GetWindowText(), "&Third");
        EXPECT_EQ(dialog.mCheck.GetCheck(), 0);
        EXPECT_EQ(dialog.GetWindowText(), "Binding");
        EXPECT_EQ(dialog.GetRect(), (TRect{0, 0, 50, 60}));
    });
}

TEST(BindingTest, EveryRunStartsAfresh)
{
    TBindingDialog dialog;
    dialog.BindAll();
    for (int nRun = 0; nRun < 3; ++nRun) {
        SCOPED_TRACE(nRun);
        gLookInto(dialog, [&] {
            EXPECT_EQ(dialog.mEdit.GetWindowText(), "start");
            EXPECT_EQ(dialog.mCombo.GetCount(), 3);
            EXPECT_EQ(dialog.mCombo.GetCurSel(), -1);
            EXPECT_EQ(dialog.mCombo.GetWindowText(), "");
            EXPECT_EQ(dialog.mCheck.GetCheck(), 0);
            EXPECT_TRUE(dialog.mEdit.IsWindowEnabled());
            EXPECT_FALSE(dialog.mCombo.IsShown());
            EXPECT_EQ(dialog.GetChildren().size(), 3U);

            dialog.mEdit.SetWindowText("other");
            dialog.mEdit.EnableWindow(false);
            dialog.mEdit.MoveWindow({});
            dialog.mCombo.AddString("four");
            dialog.mCombo.SetCurSel(3);
            dialog.mCombo.ShowWindow(SW_SHOW);
            dialog.mCheck.SetCheck(1);
        });
        EXPECT_FALSE(dialog.IsCreated());
        EXPECT_FALSE(dialog.mEdit.IsCreated());
        EXPECT_EQ(dialog.mEdit.GetWindowText(), "");
        EXPECT_EQ(dialog.mEdit.GetParent(), nullptr);
        EXPECT_EQ(dialog.mEdit.GetDlgCtrlID(), 0);
        EXPECT_EQ(dialog.mCombo.GetCount(), 0);
        EXPECT_EQ(dialog.mCheck.GetCheck(), 0);
        EXPECT_TRUE(dialog.GetChildren().empty());
    }
}

struct TFault {
    const char* pName;
    std::function<void(TBindingDialog&, CDataExchange*)> exchange;
};

const TFault kFaults[] = {
    {"an id without a row",
     [](TBindingDialog& rDialog, CDataExchange* pDX) {
         DDX_Control(pDX, kFirst, rDialog.mEdit);
         DDX_Control(pDX, 77, rDialog.mCombo);
     }},
    {"a control of another kind, first row",
     [](TBindingDialog& rDialog, CDataExchange* pDX) { DDX_Control(pDX, kFirst, rDialog.mCombo); }},
    {"a control of another kind, last row",
     [](TBindingDialog& rDialog, CDataExchange* pDX) {
         DDX_Control(pDX, kFirst, rDialog.mEdit);
         DDX_Control(pDX, kThird, rDialog.mList);
     }},
    {"a plain window, which is no control",
     [](TBindingDialog&, CDataExchange* pDX) {
         static CWnd sPlain;
         DDX_Control(pDX, kFirst, sPlain);
     }},
    {"one control for two ids",
     [](TBindingDialog& rDialog, CDataExchange* pDX) {
         DDX_Control(pDX, kFirst, rDialog.mEdit);
         DDX_Control(pDX, kSecond, rDialog.mEdit);
     }},
    {"two controls for one id",
     [](TBindingDialog& rDialog, CDataExchange* pDX) {
         static CEdit sOther;
         DDX_Control(pDX, kFirst, rDialog.mEdit);
         DDX_Control(pDX, kFirst, sOther);
     }},
};

TEST(BindingTest, AFaultThrowsAndLeavesNothingBehind)
{
    for (const TFault& rFault : kFaults) {
        SCOPED_TRACE(rFault.pName);
        HeadlessDesktop desktop;
        TBindingDialog dialog;
        dialog.Exchange([&](CDataExchange* pDX) { rFault.exchange(dialog, pDX); });
        EXPECT_THROW(dialog.DoModal(), CInvalidArgException);
        EXPECT_FALSE(dialog.IsCreated());
        EXPECT_FALSE(dialog.mEdit.IsCreated());
        EXPECT_FALSE(dialog.mCombo.IsCreated());
        EXPECT_TRUE(dialog.GetChildren().empty());
        EXPECT_TRUE(desktop.Thread().mModalRuns.empty());
        EXPECT_EQ(CWnd::GetFocus(), nullptr);

        // Nothing of it is left: with the fault mended the same object runs.
        dialog.BindAll();
        EXPECT_EQ(gRunTurns(desktop, dialog, {}), IDCANCEL);
    }
}

TEST(BindingTest, AFaultInAPaneLeavesNoPane)
{
    TBindingDialog outer;
    CPropertyPage page(kTemplate);
    TBindingDialog pane;
    gLookInto(outer, [&] {
        pane.Exchange([&](CDataExchange* pDX) { DDX_Control(pDX, kFirst, pane.mCombo); });
        EXPECT_THROW(pane.CreatePane(outer), CInvalidArgException);
        EXPECT_FALSE(pane.IsCreated());
        EXPECT_EQ(outer.GetChildren().size(), 3U);
        pane.BindAll();
        EXPECT_TRUE(pane.CreatePane(outer));
    });
}

TEST(BindingTest, AMemberServesOneDialogAtATime)
{
    TBindingDialog outer;
    outer.BindAll();
    TBindingDialog inner;
    inner.Exchange([&](CDataExchange* pDX) { DDX_Control(pDX, kFirst, outer.mEdit); });
    gLookInto(outer, [&] {
        EXPECT_THROW(inner.DoModal(), CInvalidArgException);
        EXPECT_EQ(outer.GetDlgItem(kFirst), &outer.mEdit);
        EXPECT_TRUE(outer.mEdit.IsCreated());
    });
}

TEST(BindingTest, BindingMovesNoValue)
{
    // The fields hold nothing yet while the members are bound.
    struct TFields : TBindingDialog {
        std::vector<EDataExchange> mModes;
        CString msFirst = "field";
        CString msSecond = "two";
        int mnThird = 1;
        void DoDataExchange(CDataExchange* pDX) override
        {
            mModes.push_back(pDX->GetMode());
            EXPECT_EQ(pDX->IsSaving(), pDX->GetMode() == EDataExchange::Save);
            DDX_Text(pDX, kFirst, msFirst);
            DDX_CBString(pDX, kSecond, msSecond);
            DDX_Check(pDX, kThird, mnThird);
        }
    } dialog;
    gLookInto(dialog, [&] {
        EXPECT_EQ(dialog.mModes, (std::vector{EDataExchange::Bind, EDataExchange::Load}));
        EXPECT_EQ(dialog.Get<CEdit>(kFirst).GetWindowText(), "field");
        EXPECT_EQ(dialog.Get<CComboBox>(kSecond).GetCurSel(), 1);
        EXPECT_EQ(dialog.Get<CButton>(kThird).GetCheck(), 1);
    });
}
} // namespace
