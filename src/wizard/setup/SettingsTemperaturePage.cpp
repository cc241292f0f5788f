#include "wizard/setup/SettingsTemperaturePage.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId { kTemperatures = 1001, kNote };

constexpr auto kRows = PageRows(
    TextBox(kTemperatures, "temperature-list",
            "&List circuit temperatures, separated by spaces (in degrees Celsius):", 60, 2),
    NoteLine(kNote, "note", "(default is 27)"));
constexpr DialogTemplate kTemplate{"Temperature", kPageSize, kRows};

Remembered<CSettingsTemperaturePage::TFields> sRemembered;
} // namespace

CSettingsTemperaturePage::CSettingsTemperaturePage() : CCommandPage(kTemplate) {}

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
