#include "platform/ui/ComboBox.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Fields.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"
#include "wizard/setup/SimulationOptionTable.h"

#include <algorithm>
#include <array>
#include <span>

namespace
{
enum EControlId {
    kOptionList = 1001,
    kExplanationTitle,
    kExplanation,
    kValueText,
    kValueList,
    kUnit,
};

// The value is typed, or chosen in the same place.
enum ELayer : unsigned { kTextLayer = 1, kListLayer = 2 };

constexpr auto kOptionEntries = [] {
    std::array<const char*, kSimulationOptions.size()> entries{};
    std::ranges::transform(kSimulationOptions, entries.begin(), &TSimulationOption::pEntry);
    return entries;
}();

constexpr const char* kValueEntries[] = {"Off", "On"};
constexpr int kUnitX = 170;
constexpr int kExplanationLines = 5;

constexpr auto OptionLine()
{
    using namespace PageLayout;
    return LabelledAt(Row(kOptionList, "option-list", EControl::DropDownList, "",
                          {kLeft, 0, kWidth, kEditHeight}, kSorted, 0, kOptionEntries),
                      "&Option name:");
}

/// The edit with its unit, and the list in its place; one label stands for whichever is shown.
constexpr auto ValueLine()
{
    using namespace PageLayout;
    constexpr TRect place{kLeft, 0, kUnitX - 4 - kLeft, kEditHeight};
    auto text = LabelledAt(Row(kValueText, "value-text", EControl::Edit, "", place), "&Value");
    text.rows[0].row.rect.w = kWidth; // above the unit, too
    text.rows[1].row.nLayers = kTextLayer;
    const auto list = Moved(At(Row(kValueList, "value-list", EControl::DropDownList, "", place,
                                   kHidden | kSharesLabel, kListLayer, kValueEntries)),
                            0, kAboveField, 0);
    return SameTop(text, list,
                   At(Row(kUnit, "unit", EControl::Static, "",
                          {kUnitX, kAboveField + 2, kRight - kUnitX, kLabelHeight})));
}

constexpr auto kRows =
    PageRows(OptionLine(),
             Tight(NoteLine(kExplanationTitle, "explanation-title", "Explanation:"),
                   NoteLine(kExplanation, "explanation", "", kExplanationLines)),
             ValueLine());
constexpr DialogTemplate kTemplate{"Simulation options", kPageSize, kRows};

struct TRemembered {
    int mnOption = 0;
    int mnValue = 0; ///< the value list's selection
    CString msOption;
    CString msValue;
};

Remembered<TRemembered> sRemembered;
} // namespace

/// Builds ".options ", the name of an option, "=" and its value.
class CSettingsSimulationOptionsPage : public CCommandPage
{
public:
    CSettingsSimulationOptionsPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override
    {
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&CSettingsSimulationOptionsPage::OnOption>(ENotify::SelEndOk, kOptionList),
        };
        return kHandlers;
    }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Control(pDX, kValueList, mValueList);
        DDX_Control(pDX, kOptionList, mOptionList);
        DDX_CBString(pDX, kOptionList, msOption);
        DDX_Text(pDX, kValueText, msValue);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        const TRemembered& rRemembered = sRemembered.Get();
        mOptionList.SetCurSel(rRemembered.mnOption);
        mValueList.SetCurSel(rRemembered.mnValue);
        msOption = rRemembered.msOption;
        msValue = rRemembered.msValue;
        UpdateData(false);
        OnOption(); // Meant: ends with the option's default, whichever value is remembered
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
    {
        UpdateData(true);
        gTrim(msValue);
        const int nValue = mValueList.GetCurSel();
        // Meant: before the check, so that a failed one leaves it there.
        rsCommand = gOptionCommand(mnOption, nValue, msValue);
        if (gOptionTakesText(mnOption) && msValue.IsEmpty())
            return gReportFailure(*this, msMessage, "__$$Translatable$$_Missing option value.");
        sRemembered.Set({mnOption, nValue, msOption, msValue});
        return true;
    }

private:
    /// Meant: the text in the edit stays, whichever option it was typed for.
    void OnOption()
    {
        mnOption = mOptionList.GetCurSel();
        const TSimulationOption& rOption = kSimulationOptions[static_cast<std::size_t>(mnOption)];
        const TOptionControl& rControl = rOption.control;
        LoadValues(rControl.kind == EOptionKind::List ? rControl.choices
                                                      : SimulationOptionTable::kOffOn);
        // Meant: these three aren't translated, unlike the values.
        msExplanation = rOption.pExplanation;
        msValueLabel = gOptionValueLabel(rOption);
        msUnit = rOption.pUnit;
        if (rControl.kind == EOptionKind::Edit) {
            gShowLayers(*this, kTextLayer);
        } else {
            gShowLayers(*this, kListLayer);
            mValueList.SetCurSel(rControl.nDefault);
        }
        GetDlgItem(kExplanation)->SetWindowText(msExplanation);
        gSetFieldLabel(*this, kValueText, msValueLabel);
        GetDlgItem(kUnit)->SetWindowText(msUnit);
    }

    void LoadValues(std::span<const TOptionChoice> choices)
    {
        mValueList.ResetContent();
        for (const TOptionChoice& rChoice : choices)
            mValueList.AddString(gShownText(rChoice.pEntry));
    }

    CString msMessage;
    CString msExplanation;
    CString msValueLabel;
    CString msUnit;
    int mnOption = 0;
    CComboBox mValueList;
    CComboBox mOptionList;
    CString msOption = "absdv";
    CString msValue;
};

template const CRuntimeClass& gRuntimeClass<CSettingsSimulationOptionsPage>();
