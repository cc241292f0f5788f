#include "cli/TestWizard.h"

#include "platform/base/Exceptions.h"
#include "platform/ui/Button.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/ListCtrl.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "platform/ui/TabCtrl.h"
#include "platform/ui/TemplateRows.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/QuorvaCommandDlg.h"
#include "wizard/frame/Remembered.h"

#include <array>

namespace
{
constexpr TRect At(int nLine)
{
    return {5, 12 * nLine, 100, 11};
}

// --- the dialog that a button opens; it can open another of its kind

enum ESweepId { kStart = 10, kMore };
constexpr auto kSweepRows =
    JoinRows(LabelAbove(Row(kStart, "start", EControl::Edit, "", At(1)), "&Start:"),
             Row(kMore, "more", EControl::PushButton, "&More", At(2)),
             Row(IDOK, "accept", EControl::PushButton, "&Accept", At(3)),
             Row(IDCANCEL, "cancel", EControl::PushButton, "&Cancel", At(4)));
constexpr DialogTemplate kSweepTemplate{"Sweep", {120, 80}, kSweepRows};
} // namespace

class CTestSweepDlg : public CDialog
{
public:
    explicit CTestSweepDlg(CWnd* pOwner) : CDialog(kSweepTemplate, pOwner) {}

    CString msSweep;

protected:
    TMessageMap GetMessageMap() const override
    {
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&CTestSweepDlg::OnMore>(ENotify::Clicked, kMore),
        };
        return kHandlers;
    }
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, kStart, msStart); }
    void OnOK() override
    {
        UpdateData(true);
        if (msStart.IsEmpty()) {
            gReportMessage(*this, "Missing start.");
            return;
        }
        msSweep = msStart + (msMore.IsEmpty() ? CString() : "[" + msMore + "]");
        EndDialog(IDOK);
    }

private:
    void OnMore()
    {
        CTestSweepDlg more(this);
        if (more.DoModal() == IDOK)
            msMore = more.msSweep;
    }

    CString msStart;
    CString msMore;
};

namespace
{
enum EPageId {
    kName = 100,
    kLines,
    kKind,
    kNode,
    kList,
    kAc,
    kVoltage,
    kCurrent,
    kPower,
    kOff,
    kSweep,
    kAsk,
    kFile,
    kSay,
    kFail,
    kAdd,
    kSecret,
    kFixed,
    kTable,
    kTabs,
    kGroup,
    kNote,
};
constexpr const char* kKinds[] = {"linear", "decade", "octave"};
constexpr const char* kNodes[] = {"in", "out"};
constexpr TControlRow kNameRow = Row(kName, "name", EControl::Edit, "", {50, 12, 60, 13});

constexpr auto kRows = JoinRows(
    LabelFor(kNameRow, "&Name:", {5, 14, 40, 9}), kNameRow,
    UnitFor(kNameRow, "V", {112, 14, 20, 9}),
    LabelAbove(Row(kLines, "lines", EControl::MultilineEdit, "", At(2)), "&Lines:"),
    LabelAbove(Row(kKind, "kind", EControl::DropDownList, "", At(3), 0, 0, kKinds), "&Kind:"),
    LabelAbove(Row(kNode, "node", EControl::DropDown, "", At(4), 0, 0, kNodes), "N&ode:"),
    Row(kList, "list", EControl::ListBox, "", At(5), kUnlabelled, 0, kNodes),
    Row(kAc, "ac", EControl::CheckBox, "&AC", At(6)),
    Row(kVoltage, "type", EControl::RadioButton, "&Voltage", At(7), kFirstOfGroup),
    Row(kCurrent, "type", EControl::RadioButton, "&Current", At(8)),
    Row(kPower, "type", EControl::RadioButton, "&Power", At(9), kDisabled),
    Row(kOff, "off", EControl::CheckBox, "O&ff", At(9), kDisabled),
    Row(kSweep, "sweep", EControl::PushButton, "&Sweep...", At(10)),
    Row(kAsk, "ask", EControl::PushButton, "As&k", At(11)),
    Row(kFile, "file", EControl::PushButton, "F&ile", At(12)),
    Row(kSay, "say", EControl::PushButton, "Sa&y", At(13)),
    Row(kFail, "fail", EControl::PushButton, "Fail", At(13)),
    Row(kAdd, "add", EControl::PushButton, "Add", At(14), kDisabled),
    LabelAbove(Row(kSecret, "secret", EControl::Edit, "", At(15), kHidden), "Secret:"),
    Row(kFixed, "fixed", EControl::Edit, "", At(15), kReadOnly | kUnlabelled),
    Row(kTable, "table", EControl::Table, "", At(16), kUnlabelled),
    Row(kTabs, "tabs", EControl::Tabs, "", At(16), kUnlabelled),
    Row(kGroup, "group", EControl::Group, "Group", At(17)),
    Row(kNote, "note", EControl::Static, "a note", At(17)));
constexpr DialogTemplate kTemplate{"All kinds", kPageSize, kRows};

struct TFields {
    CString msName;
};
Remembered<TFields> sRemembered;
} // namespace

class CTestAllKindsPage : public CCommandPage
{
public:
    CTestAllKindsPage() : CCommandPage(kTemplate) {}

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mFields = sRemembered.Get();
        UpdateData(false);
        GetDlgItem(kFixed)->SetWindowText("as it is");
        mTable.InsertColumn(0, "Name", 0, 10, -1);
        mTable.InsertColumn(1, "Value", 0, 10, -1);
        mTable.InsertItem(0, "r1");
        mTable.SetItemText(0, 1, "5");
        mTable.InsertItem(1, "r2");
        mTabs.AddItem("One");
        mTabs.AddItem("Two");
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
    {
        UpdateData(true);
        if (mFields.msName.IsEmpty())
            return gReportMessage(*this, "Missing name.");
        rsCommand = ".all " + mFields.msName;
        for (const auto& [nId, pTag] :
             {std::pair{kLines, " lines="}, std::pair{kKind, " kind="}, std::pair{kNode, " node="}})
            if (const CString& rsText = GetDlgItem(nId)->GetWindowText(); !rsText.IsEmpty())
                rsCommand += pTag + rsText;
        if (mList.GetCurSel() >= 0)
            rsCommand += " list=" + mList.GetText(mList.GetCurSel());
        if (dynamic_cast<CButton&>(*GetDlgItem(kAc)).GetCheck() != 0)
            rsCommand += " ac";
        if (const int nRadio = GetCheckedRadioButton(kVoltage, kPower); nRadio != 0)
            rsCommand += " type=" + GetDlgItem(nRadio)->GetWindowText();
        if (mTable.GetSelectedRow() >= 0)
            rsCommand += " row=" + mTable.GetItemText(mTable.GetSelectedRow(), 0);
        if (mTabs.GetCurSel() > 0)
            rsCommand += " tab";
        if (const CString& rsNote = GetDlgItem(kNote)->GetWindowText(); rsNote != "a note")
            rsCommand += " note=" + rsNote;
        rsCommand += msSweep;
        sRemembered.Set(mFields);
        return true;
    }

protected:
    TMessageMap GetMessageMap() const override
    {
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&CTestAllKindsPage::OnSweep>(ENotify::Clicked, kSweep),
            On<&CTestAllKindsPage::OnAsk>(ENotify::Clicked, kAsk),
            On<&CTestAllKindsPage::OnFile>(ENotify::Clicked, kFile),
            On<&CTestAllKindsPage::OnSay>(ENotify::Clicked, kSay),
            On<&CTestAllKindsPage::OnFail>(ENotify::Clicked, kFail),
            On<&CTestAllKindsPage::OnListDoubleClicked>(ENotify::DoubleClicked, kList),
        };
        return kHandlers;
    }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Control(pDX, kTable, mTable);
        DDX_Control(pDX, kTabs, mTabs);
        DDX_Control(pDX, kList, mList);
        DDX_Text(pDX, kName, mFields.msName);
    }

private:
    void OnSweep()
    {
        CTestSweepDlg dialog(this);
        if (dialog.DoModal() == IDOK)
            msSweep += " sweep=" + dialog.msSweep;
    }
    void OnAsk()
    {
        const bool bYes = AfxMessageBox("Sure?", MB_YESNO | MB_ICONQUESTION) == IDYES;
        GetDlgItem(kNote)->SetWindowText(bYes ? "yes" : "no");
    }
    void OnFile()
    {
        const TFileChoice choice =
            gChooseFile({false, this, "/data", "a.txt", "All (*.*)|*.*||", "txt", 0x802});
        switch (choice.end) {
        case TFileChoice::EEnd::Chosen:
            GetDlgItem(kNote)->SetWindowText(choice.sPath);
            break;
        case TFileChoice::EEnd::Cancelled:
            GetDlgItem(kNote)->SetWindowText("cancelled");
            break;
        case TFileChoice::EEnd::InvalidName:
            GetDlgItem(kNote)->SetWindowText("invalid name");
            break;
        }
    }
    void OnSay() { gReportMessage(*this, "Said."); }
    void OnFail() { gThrowInvalidArg("the page failed"); }
    void OnListDoubleClicked() { GetDlgItem(kNote)->SetWindowText("double-clicked"); }

    CListCtrl mTable;
    CTabCtrl mTabs;
    CListBox mList;
    CString msSweep;
    TFields mFields;
};

namespace
{
constexpr auto kLoneRows = JoinRows(
    LabelAbove(Row(kName, "name", EControl::Edit, "", At(1)), "&Name:"),
    Row(kList, "empty", EControl::ListBox, "", At(2), kUnlabelled),
    Row(kAc, "two-lines", EControl::CheckBox, "Two\nlines", At(4)),
    Row(kNote, "note", EControl::Static,
        "1234567890 234567890 234567890 2345\u00e7\u00e8\u00e9\n\u00ea and no more", At(5)));
constexpr DialogTemplate kLoneTemplate{"Lone", kPageSize, kLoneRows};
constexpr std::array kCategoryRows{Row(1, "heading", EControl::Static, "Tests", At(1))};
constexpr DialogTemplate kCategoryTemplate{"Tests", kPageSize, kCategoryRows};
} // namespace

class CTestLonePage : public CCommandPage
{
public:
    CTestLonePage() : CCommandPage(kLoneTemplate) {}
    bool BuildCommand(CString& rsCommand) override
    {
        rsCommand = ".lone " + GetDlgItem(kName)->GetWindowText();
        return rsCommand != ".lone nothing"; // a page may refuse without a word
    }
};

class CTestCategoryPage : public CCommandPage
{
public:
    CTestCategoryPage() : CCommandPage(kCategoryTemplate) {}
    bool BuildCommand(CString&) override { return false; }
};

template const CRuntimeClass& gRuntimeClass<CTestAllKindsPage>();
template const CRuntimeClass& gRuntimeClass<CTestLonePage>();
template const CRuntimeClass& gRuntimeClass<CTestCategoryPage>();

quorvawiz::cli::TWizard gTestWizard()
{
    static const TTreeRow sTree[] = {
        {0, "Tests", "CTestCategoryPage", &gRuntimeClass<CTestCategoryPage>(), true},
        {0, "All kinds", "CTestAllKindsPage", &gRuntimeClass<CTestAllKindsPage>(), false},
        {1, "Not built", "CTestNotBuiltPage", nullptr, false},
    };
    static const CRuntimeClass* const sWithoutNode[] = {&gRuntimeClass<CTestLonePage>()};
    return {sTree, sWithoutNode, [](quorvawiz::QuorvaCommandWizardTarget& rTarget) {
                CQuorvaCommandDlg(nullptr, &rTarget, sTree).DoModal();
            }};
}
