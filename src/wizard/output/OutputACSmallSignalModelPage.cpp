#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId { kDeviceList = 1001, kAllDevices };

constexpr auto kRows =
    PageRows(TextBox(kDeviceList, "device-list",
                     "&List the devices, separated by spaces, for which you want SPICE to output "
                     "AC model parameters:",
                     100, 2),
             CheckLine(kAllDevices, "all-devices", "&AC model parameters for ALL devices"));
constexpr DialogTemplate kTemplate{"AC small-signal model", kPageSize, kRows};

struct TFields {
    CString msDeviceList;
    int mnAllDevices = 0;
};

Remembered<TFields> sRemembered;
} // namespace

/// Builds ".acmodel {" and the devices whose AC model parameters are printed, or an asterisk for
/// all of them, and "}".
class COutputACSmallSignalModelPage : public CCommandPage
{
public:
    COutputACSmallSignalModelPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Text(pDX, kDeviceList, mFields.msDeviceList);
        DDX_Check(pDX, kAllDevices, mFields.mnAllDevices);
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
        gTrim(mFields.msDeviceList);
        const bool bAll = mFields.mnAllDevices != 0;
        if (mFields.msDeviceList.IsEmpty() && !bAll)
            return gReportFailure(*this, msMessage,
                                  "__$$Translatable$$_Missing device list.  List AC model devices "
                                  "or check the ALL check box.");
        rsCommand = ".acmodel {" + (bAll ? CString("*") : gJoinLines(mFields.msDeviceList)) + "}";
        sRemembered.Set(mFields);
        UpdateData(false); // shows the list as it is trimmed
        return true;
    }

private:
    CString msMessage;
    TFields mFields;
};

template const CRuntimeClass& gRuntimeClass<COutputACSmallSignalModelPage>();
