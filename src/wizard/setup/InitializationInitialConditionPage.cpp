#include "platform/ui/DataExchange.h"
#include "platform/ui/Fields.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/ListEditing.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId {
    kConditions = 1001,
    kNodeVoltage,
    kInductorCurrent,
    kName,
    kSecond,
    kValue,
    kList,
    kAdd,
    kDelete,
    kClear,
};

constexpr TColumns kColumns{.nField = 104, .nUnit = 214};
constexpr auto kRows =
    PageRows(GroupBox(kConditions, "conditions-group", "Initial conditions",
                      // Meant: two letters are marked in one label.
                      RadioLines("mode", TChoice{kNodeVoltage, "&Node voltage"},
                                 TChoice{kInductorCurrent, "&Ind&uctor current"}),
                      EditLine(kColumns, kName, "name", "N&ode name:"),
                      EditLine(kColumns, kSecond, "second", "&Reference node (GND):", ""),
                      EditLine(kColumns, kValue, "value", "Ini&tial condition:", "V")),
             LabelledListLines(kList, "list", "&List of nodes:", 90, {kAdd, "&Add"},
                               {kDelete, "&Delete"}, {kClear, "&Clear"}));
constexpr DialogTemplate kTemplate{"Initial condition", kPageSize, kRows, "ci"};

constexpr TListEditingParts kListParts{
    kDelete, kClear, "__$$Translatable$$_This entry is already in the list.",
    "__$$Translatable$$_Are you sure you want to delete the selected initial condition from the "
    "list?",
    "__$$Translatable$$_Are you sure you want to delete all initial conditions in the list?"};

struct TRemembered {
    int mnMode = kNodeVoltage;
    CString msName;
    CString msSecond;
    CString msValue;
};

Remembered<TRemembered> sRemembered;
} // namespace

/// Builds ".ic" and the voltages of nodes, in volts, and the currents of inductors, in amperes,
/// from which a simulation starts: one from the fields, or those that were collected in the list.
class CInitializationInitialConditionPage : public CCommandPage
{
public:
    CInitializationInitialConditionPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override
    {
        using TPage = CInitializationInitialConditionPage;
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&TPage::OnMode>(ENotify::Clicked, kNodeVoltage),
            On<&TPage::OnMode>(ENotify::Clicked, kInductorCurrent),
            On<&TPage::OnName>(ENotify::Change, kName),
            On<&TPage::OnSecond>(ENotify::Change, kSecond),
            On<&TPage::OnValue>(ENotify::Change, kValue),
            On<&TPage::OnAdd>(ENotify::Clicked, kAdd),
            On<&TPage::OnDelete>(ENotify::Clicked, kDelete),
            On<&TPage::OnClear>(ENotify::Clicked, kClear),
        };
        return kHandlers;
    }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Control(pDX, kList, mList);
        DDX_Text(pDX, kValue, msValue);
        DDX_Text(pDX, kSecond, msSecond);
        DDX_Text(pDX, kName, msName);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        const TRemembered& rRemembered = sRemembered.Get();
        mnMode = rRemembered.mnMode;
        msName = rRemembered.msName;
        msSecond = rRemembered.msSecond;
        msValue = rRemembered.msValue;
        CheckRadioButton(kNodeVoltage, kInductorCurrent, mnMode);
        UpdateData(false);
        OnMode();
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
    {
        ReadFields();
        if (mList.GetCount() > 0)
            rsCommand = ".ic" + mEditing.OldestFirst(" ");
        else if (!(IsCurrent() ? BuildFromCurrent(rsCommand) : BuildFromVoltage(rsCommand)))
            return false;
        sRemembered.Set({mnMode, msName, msSecond, msValue});
        return true;
    }

private:
    bool IsCurrent() const { return mnMode == kInductorCurrent; }

    void ReadFields()
    {
        UpdateData(true);
        mnMode = GetCheckedRadioButton(kNodeVoltage, kInductorCurrent);
    }

    void OnMode()
    {
        ReadFields();
        if (IsCurrent())
            ShowCurrent();
        else
            ShowVoltage();
        EnableAdd();
    }

    void ShowVoltage()
    {
        gSetFieldLabel(*this, kName, gShownText("__$$Translatable$$_N&ode name:"));
        gSetFieldLabel(*this, kSecond, gShownText("__$$Translatable$$_&Reference node (GND):"));
        gSetFieldLabel(*this, kValue, gShownText("__$$Translatable$$_Ini&tial condition:"));
        GetDlgItem(UnitOf(kSecond))->SetWindowText("");
        GetDlgItem(UnitOf(kValue))->SetWindowText(gShownText("__$$Translatable$$_V"));
        gShowField(*this, kValue, true);
    }

    void ShowCurrent()
    {
        gSetFieldLabel(*this, kName, gShownText("__$$Translatable$$_Indu&ctor name:"));
        gSetFieldLabel(*this, kSecond, gShownText("__$$Translatable$$_Ini&tial condition:"));
        GetDlgItem(UnitOf(kSecond))->SetWindowText(gShownText("__$$Translatable$$_amp"));
        GetDlgItem(UnitOf(kValue))->SetWindowText("");
        GetDlgItem(kValue)->SetWindowText("");
        gShowField(*this, kValue, false);
    }

    // --- the list

    void OnName()
    {
        ReadFields();
        EnableAdd();
    }

    void OnSecond()
    {
        ReadFields();
        if (IsCurrent())
            EnableAdd();
    }

    void OnValue()
    {
        ReadFields();
        if (!IsCurrent())
            EnableAdd();
    }

    /// Meant: a blank is a text here.
    void EnableAdd()
    {
        const CString& rsNeeded = IsCurrent() ? msSecond : msValue;
        GetDlgItem(kAdd)->EnableWindow(!msName.IsEmpty() && !rsNeeded.IsEmpty());
    }

    void OnAdd()
    {
        ReadFields();
        gTrimLeft(msName, msSecond, msValue);
        if (IsCurrent() && !CheckInductor())
            return;
        msMessage = IsCurrent() ? Current() : Voltage();
        mEditing.Add(msMessage, msMessage);
    }

    void OnDelete() { mEditing.Delete(); }

    void OnClear() { mEditing.Clear(); }

    // --- the text

    // Meant: the checks see the fields as they were typed, and are followed by the trim.

    bool BuildFromVoltage(CString& rsCommand)
    {
        if (msName.IsEmpty())
            return gReportFailure(*this, msMessage, "__$$Translatable$$_Missing node name.");
        if (msValue.IsEmpty())
            return gReportFailure(*this, msMessage, "__$$Translatable$$_Missing initial voltage.");
        gTrim(msName, msValue);
        rsCommand = ".ic " + Voltage();
        return true;
    }

    bool BuildFromCurrent(CString& rsCommand)
    {
        if (msName.IsEmpty())
            return gReportFailure(*this, msMessage, "__$$Translatable$$_Missing inductor name.");
        if (!CheckInductor())
            return false;
        if (msSecond.IsEmpty())
            return gReportFailure(*this, msMessage,
                                  "__$$Translatable$$_Missing initial inductor current.");
        gTrim(msName, msSecond);
        rsCommand = ".ic " + Current();
        return true;
    }

    bool CheckInductor()
    {
        return gBeginsWithLetter(msName, 'L') ||
               gReportFailure(*this, msMessage,
                              "__$$Translatable$$_Illegal inductor name (Must begin with 'L').");
    }

    CString Voltage() const
    {
        CString sEntry = "v(" + msName;
        gAppendIfAny(sEntry, ",", msSecond);
        return sEntry + ")=" + msValue;
    }

    CString Current() const { return "i(" + msName + ")=" + msSecond; }

    int mnMode = kNodeVoltage; ///< the radio button that is checked
    CString msMessage;         ///< the last message; an entry is put together in it, too
    CListBox mList;
    CString msValue;
    CString msSecond; ///< the reference node, or the inductor's current
    CString msName;
    ListEditing mEditing{*this, mList, kListParts};
};

template const CRuntimeClass& gRuntimeClass<CInitializationInitialConditionPage>();
