#include "wizard/setup/SettingsTemperaturePage.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "platform/ui/TemplateRows.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId { kTemperatures = 1001, kNote };

constexpr auto kRows =
    JoinRows(LabelAbove(Row(kTemperatures, "temperature-list", EControl::MultilineEdit, "",
                            {7, 27, 235, 60}, kWantReturn),
                        "&List circuit temperatures, separated by spaces (in degrees Celsius):",
                        2 * kLabelHeight),
             Row(kNote, "note", EControl::Static, "(default is 27)", {7, 92, 235, kLabelHeight}));
constexpr DialogTemplate kTemplate{150, "Temperature", kPageSize, kRows};

Remembered<CSettingsTemperaturePage::TFields> sRemembered;
} // namespace

CSettingsTemperaturePage::CSettingsTemperaturePage() : CCommandPage(kTemplate) {}

TMessageMap CSettingsTemperaturePage::GetMessageMap() const
{
    return {};
}

void CSettingsTemperaturePage::DoDataExchange(CDataExchange* pDX)
{
    CCommandPage::DoDataExchange(pDX);
    DDX_Text(pDX, kTemperatures, mFields.msTemperatures);
}

bool CSettingsTemperaturePage::OnInitDialog()
{
    CDialog::OnInitDialog();
    mFields = sRemembered.Get();
    UpdateData(false);
    return true;
}

bool CSettingsTemperaturePage::BuildCommand(CString& rsCommand)
{
    UpdateData(true);
    gTrim(mFields.msTemperatures);
    if (mFields.msTemperatures.IsEmpty())
        return gReportFailure(*this, msMessage, "__$$Translatable$$_Missing temperature value.");
    rsCommand = ".temp " + gJoinLines(mFields.msTemperatures);
    sRemembered.Set(mFields);
    return true;
}

template const CRuntimeClass& gRuntimeClass<CSettingsTemperaturePage>();
