#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId { kBusName = 1001, kNodeList, kNote };

constexpr TColumns kName{.nField = 60};
constexpr auto kRows =
    PageRows(EditLine(kName, kBusName, "bus-name", "&Bus name:"),
             TextBox(kNodeList, "node-list", "&Nodes in bus:", 60),
             NoteLine(kNote, "note",
                      "Use this bus with the BUS waveform for voltage and current sources", 2));
constexpr DialogTemplate kTemplate{"Bus definition", kPageSize, kRows};

struct TFields {
    CString msBusName;
    CString msNodeList;
};

Remembered<TFields> sRemembered;
} // namespace

/// Builds ".vector ", the name of a bus, and its nodes in braces.
class CSettingsBusDefinitionPage : public CCommandPage
{
public:
    CSettingsBusDefinitionPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Text(pDX, kBusName, mFields.msBusName);
        DDX_Text(pDX, kNodeList, mFields.msNodeList);
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
        gTrim(mFields.msBusName); // Meant: the list isn't, a blank is a list
        if (mFields.msBusName.IsEmpty())
            return gReportFailure(*this, msMessage, "__$$Translatable$$_Missing bus name.");
        if (mFields.msNodeList.IsEmpty())
            return gReportFailure(*this, msMessage,
                                  "__$$Translatable$$_Missing node list for bus.");
        rsCommand = ".vector " + mFields.msBusName + " {" + gJoinLines(mFields.msNodeList) + "}";
        sRemembered.Set(mFields);
        return true;
    }

private:
    CString msMessage;
    TFields mFields;
};

template const CRuntimeClass& gRuntimeClass<CSettingsBusDefinitionPage>();
