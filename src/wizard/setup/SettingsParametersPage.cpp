#include "platform/ui/ComboBox.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Fields.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/ListEditing.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"
#include "wizard/setup/ParameterDefinition.h"

#include <algorithm>

namespace
{
enum EControlId {
    kType = 1001,
    kDistribution,
    kFirst, // the fields stand in this order
    kSecond,
    kThird,
    kFourth,
    kFifth,
    kSixth,
    kEquals,
    kList,
    kAdd,
    kDelete,
    kClear,
};

constexpr const char* kTypes[] = {"General", "Monte Carlo", "Optimization"};
constexpr const char* kDistributionEntries[] = {kDistributions[0].pEntry, kDistributions[1].pEntry,
                                                kDistributions[2].pEntry, kDistributions[3].pEntry,
                                                kDistributions[4].pEntry};
static_assert(std::size(kDistributionEntries) == kDistributions.size());

constexpr int kRightX = 104; // where the right column begins

constexpr TRect LeftRect()
{
    return {PageLayout::kLeft, 0, kRightX - 14 - PageLayout::kLeft, kEditHeight};
}

constexpr TRect RightRect()
{
    return {kRightX, 0, PageLayout::kRight - kRightX, kEditHeight};
}

constexpr auto Choice(int nId, const char* pKey, const char* pLabel, const TRect& rRect,
                      std::span<const char* const> entries, unsigned nFlags = kNoFlags)
{
    return LabelledAt(Row(nId, pKey, EControl::DropDownList, "", rRect, nFlags, 0, entries),
                      pLabel);
}

constexpr auto Field(int nId, const char* pKey, const char* pLabel, const TRect& rRect,
                     unsigned nFlags = kHidden)
{
    return LabelledAt(Row(nId, pKey, EControl::Edit, "", rRect, nFlags), pLabel);
}

// What the types show, at first as the general one does.
constexpr auto kRows = PageRows(
    SameTop(Choice(kType, "parameter-type", "&Parameter type:", LeftRect(), kTypes),
            Choice(kDistribution, "distribution", "Pr&obability distribution type:", RightRect(),
                   kDistributionEntries, kHidden)),
    SameTop(Field(kFirst, "first", "Pa&rameter name:", LeftRect()),
            Field(kSixth, "sixth", "&Optimization run name:", RightRect())),
    SameTop(Field(kSecond, "second", "Pa&rameter name:", LeftRect(), kNoFlags),
            At(Row(kEquals, "equals", EControl::Static, "=",
                   {kRightX - 10, PageLayout::kAboveField + 2, 6, kLabelHeight})),
            Field(kThird, "third", "Para&meter value:", RightRect(), kNoFlags)),
    SameTop(Field(kFourth, "fourth", "&Sigma level:", LeftRect()),
            Field(kFifth, "fifth", "&Multiplier (default is 1):", RightRect())),
    LabelledListLines(kList, "list", "&List of parameters:", 82, {kAdd, "&Add"},
                      {kDelete, "&Delete"}, {kClear, "&Clear"}));
constexpr DialogTemplate kTemplate{"Parameters", kPageSize, kRows};

constexpr TListEditingParts kListParts{
    kDelete, kClear, "__$$Translatable$$_This value is already in the list.",
    // Meant: neither question is translated; they aren't plot items.
    "Are you sure you want to delete the selected parameter from the list?",
    "Are you sure you want to delete all plot items in the list?"};

/// The labels that a type gives the fields, first to sixth; null hides a field.
using TLabels = std::array<const char*, kParameterFields>;

constexpr TLabels kGeneralLabels{nullptr,
                                 "__$$Translatable$$_Pa&rameter name:",
                                 "__$$Translatable$$_Para&meter value:",
                                 nullptr,
                                 nullptr,
                                 nullptr};
constexpr TLabels kMonteCarloLabels{"__$$Translatable$$_Pa&rameter name:",
                                    "__$$Translatable$$_&Nominal value:",
                                    kRelativeVariation,
                                    "__$$Translatable$$_&Sigma level:",
                                    "__$$Translatable$$_&Multiplier (default is 1):",
                                    nullptr};
constexpr TLabels kOptimizationLabels{
    "__$$Translatable$$_Pa&rameter name:", "__$$Translatable$$_I&nitial guess value:",
    "__$$Translatable$$_&Minimum value:",  "__$$Translatable$$_Ma&ximum value:",
    "__$$Translatable$$_D&elta value:",    "__$$Translatable$$_&Optimization run name:"};

const TLabels& LabelsOf(EParameterType type)
{
    switch (type) {
    case EParameterType::General:
        break;
    case EParameterType::MonteCarlo:
        return kMonteCarloLabels;
    case EParameterType::Optimization:
        return kOptimizationLabels;
    }
    return kGeneralLabels;
}

Remembered<TParameterFields> sRemembered;
} // namespace

/// Builds ".param" and definitions of parameters: one from the fields, or those that were collected
/// in the list.
class CSettingsParametersPage : public CCommandPage
{
public:
    CSettingsParametersPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override
    {
        using TPage = CSettingsParametersPage;
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&TPage::OnType>(ENotify::SelChange, kType),
            On<&TPage::OnDistribution>(ENotify::SelChange, kDistribution),
            On<&TPage::OnField>(ENotify::Change, kFirst),
            On<&TPage::OnField>(ENotify::Change, kSecond),
            On<&TPage::OnField>(ENotify::Change, kThird),
            On<&TPage::OnField>(ENotify::Change, kFourth),
            On<&TPage::OnField>(ENotify::Change, kSixth),
            On<&TPage::OnAdd>(ENotify::Clicked, kAdd),
            On<&TPage::OnDelete>(ENotify::Clicked, kDelete),
            On<&TPage::OnClear>(ENotify::Clicked, kClear),
        };
        return kHandlers;
    }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Control(pDX, kType, mType);
        DDX_Control(pDX, kList, mList);
        DDX_Control(pDX, kDistribution, mDistribution);
        for (std::size_t n = 0; n < kParameterFields; ++n)
            DDX_Text(pDX, kFirst + static_cast<int>(n), mFields.mTexts[n]);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mFields = sRemembered.Get();
        mType.SetCurSel(static_cast<int>(mFields.mType));
        mDistribution.SetCurSel(mFields.mnDistribution);
        UpdateData(false);
        OnDistribution();
        OnType(); // Meant: ends with distribution 0, whichever is remembered
        for (const int nField : {kSixth, kFirst, kSecond, kThird, kFourth})
            OnField(nField);
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
    {
        ReadTrimmed();
        if (mList.GetCount() > 0)
            rsCommand = ".param" + mEditing.OldestFirst(" ");
        else if (const char* pFailure = gDefineParameter(mFields, kDirectCommand, rsCommand))
            return gReportFailure(*this, pFailure);
        sRemembered.Set(mFields);
        return true;
    }

private:
    void ReadFields()
    {
        UpdateData(true);
        mFields.mType = static_cast<EParameterType>(mType.GetCurSel());
        mFields.mnDistribution = mDistribution.GetCurSel();
    }

    void ReadTrimmed()
    {
        ReadFields();
        for (CString& rsText : mFields.mTexts)
            gTrimLeft(rsText);
    }

    void OnType()
    {
        ReadFields();
        const bool bMonteCarlo = mFields.mType == EParameterType::MonteCarlo;
        const TLabels& rLabels = LabelsOf(mFields.mType);
        for (std::size_t n = 0; n < kParameterFields; ++n) {
            const int nField = kFirst + static_cast<int>(n);
            if (rLabels[n])
                gSetFieldLabel(*this, nField, gShownText(rLabels[n]));
            gShowField(*this, nField, rLabels[n] != nullptr);
        }
        gShowField(*this, kEquals, mFields.mType == EParameterType::General);
        gShowField(*this, kDistribution, bMonteCarlo);
        if (bMonteCarlo)
            ShowDistribution(kDistributions[0]);
        GetDlgItem(kAdd)->EnableWindow(false);
        mDistribution.SetCurSel(0);
    }

    // Meant: Add stays as it is.
    void OnDistribution()
    {
        ReadFields();
        ShowDistribution(kDistributions.at(static_cast<std::size_t>(mFields.mnDistribution)));
    }

    void ShowDistribution(const TDistribution& rDistribution)
    {
        gSetFieldLabel(*this, kThird, gShownText(rDistribution.pVariationLabel));
        gShowField(*this, kFourth, rDistribution.bSigma);
        gShowField(*this, kFifth, rDistribution.pBeforeMultiplier != nullptr);
    }

    /// Meant: a blank is a text here.
    void OnField(int nId)
    {
        ReadFields();
        const auto needed = gNeededFields(mFields);
        if (std::ranges::find(needed, static_cast<std::size_t>(nId - kFirst)) == needed.end())
            return;
        const bool bAll = std::ranges::none_of(
            needed, [this](std::size_t nField) { return mFields.mTexts[nField].IsEmpty(); });
        GetDlgItem(kAdd)->EnableWindow(bAll);
    }

    void OnAdd()
    {
        ReadTrimmed();
        CString sEntry;
        if (const char* pFailure = gDefineParameter(mFields, kListEntry, sEntry)) {
            gReportFailure(*this, pFailure);
            return;
        }
        mEditing.Add(sEntry);
    }

    void OnDelete() { mEditing.Delete(); }

    void OnClear() { mEditing.Clear(); }

    CComboBox mType;
    CListBox mList;
    CComboBox mDistribution;
    TParameterFields mFields;
    ListEditing mEditing{*this, mList, kListParts};
};

template const CRuntimeClass& gRuntimeClass<CSettingsParametersPage>();
