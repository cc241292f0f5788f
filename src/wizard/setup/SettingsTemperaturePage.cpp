#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId { kTemperatures = 1001, kNote };

constexpr auto kRows =
    PageRows(TextBox(kTemperatures, "temperature-list",
                     "&List circuit temperatures, separated by spaces (in degrees Celsius):", 60),
             NoteLine(kNote, "note", "(default is 27)"));
constexpr DialogTemplate kTemplate{"Temperature", kPageSize, kRows};

struct TFields {
    CString msTemperatures;
};

Remembered<TFields> sRemembered;
} // namespace

/// Builds ".temp " and the temperatures, in degrees Celsius, at which the circuit is analysed.
class CSettingsTemperaturePage : public CCommandPage
{
public:
    CSettingsTemperaturePage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Text(pDX, kTemperatures, mFields.msTemperatures);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mFields = sRemembered.Get();
        UpdateData(false);
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
    {
        UpdateData(true);
        gTrim(mFields.msTemperatures);
        if (mFields.msTemperatures.IsEmpty())
            return gReportFailure(*this, msMessage,
                                  "__$$Translatable$$_Missing temperature value.");
        rsCommand = ".temp " + gJoinLines(mFields.msTemperatures);
        sRemembered.Set(mFields);
        return true;
    }

private:
    CString msMessage;
    TFields mFields;
};

template const CRuntimeClass& gRuntimeClass<CSettingsTemperaturePage>();
