#include "wizard/output/PlotForm.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/Fields.h"
#include "wizard/frame/PageText.h"
#include "wizard/output/PlotTerminals.h"

#include <algorithm>

using namespace Plot;

namespace
{
constexpr TListEditingParts kListParts{
    kDelete, kClear, "__$$Translatable$$_This entry is already in the list.",
    "__$$Translatable$$_Are you sure you want to delete the selected plot item from the list?",
    "__$$Translatable$$_Are you sure you want to delete all plot items in the list?"};

template <class TTable> const auto& At(const TTable& rTable, int nIndex)
{
    return rTable[static_cast<std::size_t>(nIndex)];
}

void Trim(CString& rsText, ETrim ends)
{
    if (ends == ETrim::Left || ends == ETrim::Both)
        rsText.TrimLeft();
    if (ends == ETrim::Right || ends == ETrim::Both)
        rsText.TrimRight();
}
} // namespace

PlotForm::PlotForm(CCommandPage& rPage, const TPlotPage& rTable,
                   Remembered<TPlotFields>& rRemembered)
    : mrPage(rPage), mrTable(rTable), mrRemembered(rRemembered), mEditing(rPage, mList, kListParts)
{
}

void PlotForm::Exchange(CDataExchange* pDX)
{
    DDX_Control(pDX, kPlotType, mPlotType);
    DDX_Text(pDX, kFirstName, mFields.msFirstName);
    DDX_Text(pDX, kSecondName, mFields.msSecondName);
    DDX_Control(pDX, kTerminal, mTerminal);
    DDX_Text(pDX, kExpression, mFields.msExpression);
    if (mrTable.bFormats)
        DDX_Control(pDX, kFormat, mFormat);
    DDX_Control(pDX, kList, mList);
    DDX_Text(pDX, kItemName, mFields.msItemName);
    DDX_Text(pDX, kItemUnit, mFields.msItemUnit);
}

bool PlotForm::InitDialog()
{
    mrPage.CDialog::OnInitDialog();
    mFields = mrRemembered.Get();
    mPlotType.SetCurSel(mFields.mnPlotType);
    mTerminal.SetCurSel(mFields.mnTerminal);
    mFormat.SetCurSel(mFields.mnFormat);
    mrPage.UpdateData(false);
    if (mrTable.bOpensRefreshed)
        OnPlotType();
    return true;
}

// --- what the page shows

const TPlotType& PlotForm::Type() const
{
    return At(mrTable.types, mFields.mnPlotType);
}

const CString& PlotForm::TextOf(int nField) const
{
    return nField == kFirstName    ? mFields.msFirstName
           : nField == kSecondName ? mFields.msSecondName
                                   : mFields.msExpression;
}

void PlotForm::OnPlotType()
{
    Read();
    const TPlotType& rType = Type();
    gSetFieldLabel(mrPage, kFirstName, gShownText(rType.pFirstLabel));
    gSetFieldLabel(mrPage, kSecondName, gShownText(rType.pSecondLabel));
    if (!rType.formatEntries.empty())
        FillFormats(rType.formatEntries);
    gShowLayers(mrPage, rType.nLayers);
    EnableAdd();
}

void PlotForm::FillFormats(std::span<const char* const> entries)
{
    mFormat.ResetContent();
    for (const char* const pEntry : entries)
        mFormat.AddString(gShownText(pEntry));
    mFormat.SetCurSel(0);
}

void PlotForm::OnText(int nField)
{
    Read();
    if (std::ranges::find(Type().needs, nField, &TNeed::nField) != Type().needs.end())
        EnableAdd();
}

/// Meant: a blank is a text here.
void PlotForm::EnableAdd()
{
    const bool bAll = std::ranges::none_of(Type().needs, [this](const TNeed& rNeed) {
        return rNeed.nField != 0 && TextOf(rNeed.nField).IsEmpty();
    });
    mrPage.GetDlgItem(kAdd)->EnableWindow(bAll);
}

// --- the list

void PlotForm::OnAdd()
{
    ReadTrimmed(mrTable.add);
    msFormat.Empty();
    TakeFormat();
    mEditing.Add(Item(), msMessage);
}

void PlotForm::OnDelete()
{
    mEditing.Delete();
}

void PlotForm::OnClear()
{
    mEditing.Clear();
}

// --- the command

bool PlotForm::Build(CString& rsCommand)
{
    ReadTrimmed(mrTable.build);
    if (mList.GetCount() > 0) {
        rsCommand = mrTable.pKeyword + mEditing.OldestFirst(" ");
    } else {
        if (!IsComplete())
            return false;
        TakeFormat();
        rsCommand = mrTable.pKeyword + (" " + Item());
    }
    mrRemembered.Set(mFields);
    return true;
}

void PlotForm::Read()
{
    mrPage.UpdateData(true);
    mFields.mnPlotType = mPlotType.GetCurSel();
    mFields.mnTerminal = mTerminal.GetCurSel();
    mFields.mnFormat = mFormat.GetCurSel();
}

void PlotForm::ReadTrimmed(const TOptionalTrims& rTrims)
{
    Read();
    gTrim(mFields.msFirstName, mFields.msSecondName, mFields.msExpression);
    Trim(mFields.msItemName, rTrims.name);
    Trim(mFields.msItemUnit, rTrims.unit);
}

bool PlotForm::IsComplete()
{
    for (const TNeed& rNeed : Type().needs)
        if (rNeed.pMissing && TextOf(rNeed.nField).IsEmpty())
            return gReportFailure(mrPage, msMessage, rNeed.pMissing);
    return true;
}

/// Meant: without a text for the format that is selected, the one before stays.
void PlotForm::TakeFormat()
{
    const auto texts = Type().formatTexts;
    if (mFields.mnFormat >= 0 && static_cast<std::size_t>(mFields.mnFormat) < texts.size())
        msFormat = At(texts, mFields.mnFormat);
}

CString PlotForm::Item() const
{
    CString sItem;
    if (!mFields.msItemName.IsEmpty()) {
        sItem = mFields.msItemName;
        if (!mFields.msItemUnit.IsEmpty())
            sItem += "<" + mFields.msItemUnit + ">";
        sItem += "=";
    }
    return sItem + Body();
}

CString PlotForm::Body() const
{
    CString sBody;
    for (const char* p = Type().pBody; *p; ++p) {
        if (*p != '%') {
            sBody += *p;
            continue;
        }
        switch (*++p) {
        case '1':
            sBody += mFields.msFirstName;
            break;
        case '2':
            sBody += mFields.msSecondName;
            break;
        case 'o':
            gAppendIfAny(sBody, ",", mFields.msSecondName);
            break;
        case 't':
            sBody += At(kTerminals, mFields.mnTerminal).pLetter;
            break;
        case 'f':
            sBody += msFormat;
            break;
        default:
            sBody += mFields.msExpression;
            break;
        }
    }
    return sBody;
}
